<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Formato di file non valido</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Guida di Quillet</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>Realizzato con %1.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Copyright 2026 Gli autori di Quillet. Software libero con licenza MIT.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>Ordina le liste dei canali dei televisori LG.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>Informazioni su Quillet</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Versione %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analogico</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 e %n altro</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Antenna</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>Applica &amp;ordine…</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Disporre questa lista nell’ordine di un’altra</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Scegli una lista di riferimento</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordina il %n canale visualizzato tra i numeri che occupa ora.</numerusform>
            <numerusform>Ordina tutti i %n canali visualizzati tra i numeri che occupano ora.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Criptaggio</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Frequenza</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Rete</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Numero</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>ID servizio</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Tipo (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Direzione</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Decrescente</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Prima quelli criptati</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Ordina per:</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>Prima quelli in chiaro</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>Tutti questi canali sono già in quest’ordine.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Nient’altro</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Ordina</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale cambierebbe posto.</numerusform>
            <numerusform>%n canali cambierebbero posto.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordina il %n canale selezionato tra i numeri che occupa ora.</numerusform>
            <numerusform>Ordina i %n canali selezionati tra i numeri che occupano ora.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>&amp;Poi per:</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>Po&amp;i per:</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Ordina i canali tra i numeri che occupano</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Ordina canali</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Crescente</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>Non è possibile usare file di questo tipo</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>La sezione %1 non contiene una lista di canali.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Il primo canale della sezione %1 si trova a %n carattere dall’inizio della sezione; ne sono ammessi al massimo %2.</numerusform>
            <numerusform>Il primo canale della sezione %1 si trova a %n caratteri dall’inizio della sezione; ne sono ammessi al massimo %2.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Cambia comunque i numeri</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale riceverebbe un numero che una lista di canali non può contenere.</numerusform>
            <numerusform>%n canali riceverebbero numeri che una lista di canali non può contenere.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>Il numero più alto è %1. Un canale oltre quel numero ne riceve uno basso, come 0, e può risultare una radio.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Recupera</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Cavo</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>“%1” è stato modificato da un altro programma.</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>Se salvi ora, le modifiche apportate dall’altro programma andranno perse.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Scegli un’altra posizione…</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Azzera ricerca e tipo</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Cancella menu</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Azzera la ricerca</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Appunti</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Chiudi senza salvare</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Blocco</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Criptato</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Frequenza</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Nascosto</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Rete</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>ID rete</translation>
    </message>
    <message id="kColumnNumber">
        <source></source>
        <translation>N.</translation>
    </message>
    <message id="kColumnNumberFull">
        <source></source>
        <translation>Numero</translation>
    </message>
    <message id="kColumnSatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kColumnServiceId">
        <source></source>
        <translation>Servizio</translation>
    </message>
    <message id="kColumnServiceIdFull">
        <source></source>
        <translation>ID servizio</translation>
    </message>
    <message id="kColumnSkipped">
        <source></source>
        <translation>Salta</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Flusso</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>ID flusso di trasporto</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>Tutte le liste</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Applica</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>Negli appunti</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Differenza</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>Non ci sono differenze.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>“%1” non contiene alcuna lista da confrontare.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>Il disco non ha conservato quanto è stato scritto. Potrebbe essere pieno o danneggiato.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Altri dati</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Confronta con</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>Nessun canale adatto</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Salto o blocco</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>Lista</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Sposta</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Altro numero</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (come letto)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Nome là</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1 del %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (com’era alle %2)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>Nessun canale è di un tipo spuntato sopra e corrisponde alla ricerca.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>In questo nulla differisce</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>Nuovo n.</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>N. là</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Solo qui</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Solo là</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Incolla</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Altro nome</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Uguali</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Canali confrontati</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Riprendi</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>Confronto con “%1”</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>Modifiche da “%1”</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>Ordine di “%1”</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Canali da incollare</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Va alla fine</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Incerto</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>Il file è vuoto o non è una lista di canali.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>Se salvi una copia, questa finestra prosegue con la copia: da quel momento “Salva” scrive in essa.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>Impossibile creare un nuovo file nella cartella “%1”: %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>Ordina le liste dei canali dei televisori LG</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Editor di liste dei canali</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, canale, stazione, televisore, televisione, TV, radio, satellite, cavo, ordinare</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Televisore:</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale in meno</numerusform>
            <numerusform>%n canali in meno</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale con altri dati</numerusform>
            <numerusform>%n canali con altri dati</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale che non c’è più</numerusform>
            <numerusform>%n canali che non ci sono più</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale con un altro blocco</numerusform>
            <numerusform>%n canali con un altro blocco</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale in più</numerusform>
            <numerusform>%n canali in più</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale con un altro nome</numerusform>
            <numerusform>%n canali con altri nomi</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>senza %n che è nuovo</numerusform>
            <numerusform>senza %n che sono nuovi</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale a un altro numero</numerusform>
            <numerusform>%n canali ad altri numeri</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>Gli stessi canali in un altro ordine</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>Gli stessi canali nello stesso ordine</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale con un altro contrassegno di salto</numerusform>
            <numerusform>%n canali con altri contrassegni di salto</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>Scarta</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Scarta modifiche</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>Non è stato possibile scartare tutto. Un altro programma usa queste cartelle, oppure lì non si può eliminare nulla:</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>Vuoi scartare le modifiche non salvate a “%1”?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Vuoi scartare le modifiche non salvate a %n lista?</numerusform>
            <numerusform>Vuoi scartare le modifiche non salvate a %n liste?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>Poi non si potranno più recuperare.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>Vuoi scartare modifiche non salvate che non si possono leggere?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>il disco segnala un errore; potrebbe essere danneggiato</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>non c’è più spazio sul disco</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>il disco è stato rimosso</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>UTF-8 con contrassegno (per fogli di calcolo)</translation>
    </message>
    <message id="kEncodingUtf16">
        <source></source>
        <translation>UTF-16</translation>
    </message>
    <message id="kEncodingUtf8">
        <source></source>
        <translation>UTF-8</translation>
    </message>
    <message id="kEncodingWindows">
        <source></source>
        <translation>Windows-1252 (Europa occidentale)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>L’unico canale di questa lista</numerusform>
            <numerusform>Tutti i %n canali di questa lista</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale non ha identificatori completi e si riconosce solo dal nome.</numerusform>
            <numerusform>%n canali non hanno identificatori completi e si riconoscono solo dal nome.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>In %n nome virgole e spazi stanno al posto di punti e virgola e a capo; da quel nome il canale non si riconosce.</numerusform>
            <numerusform>In %n nomi virgole e spazi stanno al posto di punti e virgola e a capo; da quei nomi i canali non si riconoscono.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>Co&amp;difica:</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>Viene scritta una copia dell’intera lista di canali con il nome che scegli. Il file di questa finestra resta com’è. L’ordine della copia può essere applicato ad altre liste se il suo nome termina con “.tll”.</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>Impossibile esportare la lista come “%1”.</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Formato:</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>Con c&amp;hiavi dei canali, per importare modifiche</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Esporta lista</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n carattere non esiste in questa codifica; al suo posto c’è “?”.</numerusform>
            <numerusform>%n caratteri non esistono in questa codifica; al loro posto c’è “?”.</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale ha numeri come identificatori: le liste con identificatori di testo lo riconoscono da quelli, questa lista solo dal nome.</numerusform>
            <numerusform>%n canali hanno numeri come identificatori: le liste con identificatori di testo li riconoscono da quelli, questa lista solo dal nome.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Esporta…</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Pagina da stampare (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Lista di riferimento per applicare un ordine (testo)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale rinominato non ha identificatori completi: si riconosce solo quando la lista è stata salvata e riaperta.</numerusform>
            <numerusform>%n canali rinominati non hanno identificatori completi: si riconoscono solo quando la lista è stata salvata e riaperta.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>Se&amp;paratore:</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Solo quello mostrato</numerusform>
            <numerusform>Solo i %n mostrati</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Canali:</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Tabella per fogli di calcolo (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Esporta come lista di riferimento (copia dell’intero file)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>Un ordine si legge da almeno tre canali: questo file non si potrebbe applicare.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>“%1” non dice se il canale ha questo contrassegno; 1 o 0 sì.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>“%1” non è un numero da 1 a 16383.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Riga %1, colonna %2 “%3”:</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>Ci sono due colonne “%1”.</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>La prima riga deve avere i titoli delle colonne come sono stati esportati, tra cui “Nome”, “Servizio” o “stationKey”.</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>Non ci sono righe di canali.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Riga %1, carattere %2:</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>C’è del testo dopo le virgolette di chiusura.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>La tabella è troppo grande.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>“%1” non è in una colonna con titolo.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>Qui si aprono virgolette che non si chiudono.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>Questo non è un file di testo.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>Non c’è alcun file in “%1”.</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>File</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>Il file è decisamente troppo grande per essere una lista di canali.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>Impossibile leggere il file: %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>Riempi i v&amp;uoti</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>Numera la lista 1, 2, 3… senza vuoti, ora e dopo ogni spostamento</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>Tutti i tipi</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>Tutti i file</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Liste di canali</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Altro</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>Pagine HTML</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Liste di riferimento</translation>
    </message>
    <message id="kFilterSD">
        <source></source>
        <translation>SD</translation>
    </message>
    <message id="kFilterTables">
        <source></source>
        <translation>Tabelle</translation>
    </message>
    <message id="kFilterTextFiles">
        <source></source>
        <translation>File di testo</translation>
    </message>
    <message id="kFilterTV">
        <source></source>
        <translation>TV</translation>
    </message>
    <message id="kFilterUHD">
        <source></source>
        <translation>UHD</translation>
    </message>
    <message id="kFolderGoneMessage">
        <source></source>
        <translation>La cartella “%1” non c’è più.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>È stata spostata o eliminata, oppure il suo disco è stato rimosso. Non è stato salvato nulla e nulla è andato perso: la lista è ancora in questa finestra con tutte le modifiche.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>al suo posto c’è una cartella</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>Non è stato possibile avviare un programma che mostri la cartella “%1”.</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>Questi canali sono di “%1”. Azzera la ricerca e il tipo per vedere “%2”.</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>“%1” non c’è più.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>Il file è stato spostato o eliminato, oppure il disco su cui si trovava è stato rimosso. Salvando qui si crea un nuovo file in quel punto; se lo vuoi su una chiavetta, inseriscila prima.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Indietro</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Cerca</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Chiudi la barra di ricerca</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Risultato %1 di %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Cerca in questa pagina</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Risultato successivo</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>Non trovato in questa pagina</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Risultato precedente</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Cerca una parola in questa pagina</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>Avanti</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Pagina iniziale</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Apri nel browser</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>Apri in Chrome</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Navigazione</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>Nessuna lista di canali aperta</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Trascina un file TLL del tuo televisore in questa finestra o scegline uno.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>Questo tipo di ricezione non ha stazioni radio</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>Nessun canale</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>Questo file non contiene canali. Puoi trascinare qui un altro file TLL.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>Questo tipo di ricezione non ha canali TV</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Apri un file…</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Le stazioni radio di questo tipo di lista non vengono mostrate</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Quelle che contiene restano nel file.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>Mostra le sue stazioni radio</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>Mostra i suoi canali TV</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Attuale</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Passo più vecchio conservato</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (salvato)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>Lista all’apertura</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>Cronologia</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Annullato</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>La tabella non ha la colonna “stationKey”: alcuni canali si riconoscono solo dal nome.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Numeri e ordine delle righe sono cambiati e non concordano: valgono i numeri.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>I numeri sono invariati ma le righe sono in un altro ordine: i canali prendono l’ordine delle righe.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>Impossibile importare “%1”. La lista resta com’è.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>Le righe corrispondono a un’altra lista di questo file: %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>La tabella non indica numeri: i canali prendono l’ordine delle righe.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Importa modifiche da una tabella</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n riga non è chiara: la chiave e il nome non concordano, o il canale compare di nuovo.</numerusform>
            <numerusform>%n righe non sono chiare: la chiave e il nome non concordano, o un canale compare più volte.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Colonne non lette: %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n riga della tabella non indica alcun canale.</numerusform>
            <numerusform>%n righe della tabella non indicano alcun canale.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Info…</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>Contenuto</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Campo</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Campi del canale</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Mostra tutti i campi del canale selezionato</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>un altro programma lo sta usando</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>“%1” è una cartella.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Mantieni la mia</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>Italiano</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Più tardi</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>Il collegamento al file rimanda a se stesso.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>Impossibile aprire la lista di canali.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Qui non si può riprendere nulla</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1: non spuntato</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1: spuntato</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n “&amp;” isolato è stato corretto.</numerusform>
            <numerusform>%n “&amp;” isolati sono stati corretti.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n “&lt;” isolato è stato corretto.</numerusform>
            <numerusform>%n “&lt;” isolati sono stati corretti.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n carattere di controllo è stato rimosso.</numerusform>
            <numerusform>%n caratteri di controllo sono stati rimossi.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>L’ultimo canale era troncato; ciò che ne è intatto è stato conservato.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>L’ultimo canale era troncato e si è dovuto tralasciarlo.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>Mancava la fine del file ed è stata aggiunta.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n frammento di testo fuori dalla lista è stato rimosso.</numerusform>
            <numerusform>%n frammenti di testo fuori dalla lista sono stati rimossi.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>È stato corretto %n tag mancante o errato.</numerusform>
            <numerusform>Sono stati corretti %n tag mancanti o errati.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>Questa è una copia riparata di “%1”. Il file stesso resta com’è.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>&amp;Informazioni su Quillet</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>Salva riparate le liste &amp;JSON</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;logico</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Antenna</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>Applica &amp;ordine…</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>Or&amp;dina…</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Cavo</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>Colo&amp;nne</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Con&amp;fronta con</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>&amp;Altra lista…</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>File come è stato &amp;letto</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>Co&amp;pia</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>&amp;Modifica</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>&amp;Esporta come lista di riferimento…</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>Esporta ta&amp;bella o pagina…</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;File</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>Riempi i &amp;vuoti</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>Tutti i ti&amp;pi</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>Altr&amp;o</translation>
    </message>
    <message id="kMenuFilterSD">
        <source></source>
        <translation>S&amp;D</translation>
    </message>
    <message id="kMenuFilterTV">
        <source></source>
        <translation>Solo T&amp;V</translation>
    </message>
    <message id="kMenuFilterUHD">
        <source></source>
        <translation>&amp;UHD</translation>
    </message>
    <message id="kMenuFind">
        <source></source>
        <translation>&amp;Cerca</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>Cerca &amp;successivo</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>Cerca &amp;precedente</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Cerca…</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>&amp;Guida di Quillet</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>Cronolo&amp;gia</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>Importa modific&amp;he…</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>&amp;Info canale</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>&amp;Blocco bambini</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>&amp;Sposta a…</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>Sposta alla &amp;fine</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>Sposta all’ini&amp;zio</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>Spos&amp;ta su</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>&amp;Apri…</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>Apri &amp;recenti</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>Incolla &amp;qui</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>Prefere&amp;nze…</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>S&amp;tampa…</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>Stampa co&amp;mpatta…</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>Esc&amp;i</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>Stazioni &amp;radio</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>Apri la cartella di rec&amp;upero</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>&amp;Ripeti: %1</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>Rile&amp;ggi dal disco</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>Rino&amp;mina</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>Scarta mo&amp;difiche</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>&amp;Prova un esempio</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>&amp;Satellite</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>&amp;Salva</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>Salva c&amp;on nome…</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>S&amp;eleziona</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;Tutti</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>&amp;Criptati</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>&amp;Inverti selezione</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>&amp;Nessuno</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>&amp;Stesso tipo</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>S&amp;alta</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>Scambia i n&amp;umeri</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>Più &amp;grande</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normale</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>Dimensione del t&amp;esto</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>Più &amp;piccola</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>Canali &amp;TV</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>Annu&amp;lla</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>Annu&amp;lla: %1</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>&amp;Liste non salvate…</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>Versioni &amp;precedenti…</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>lista dei canali LG</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>&amp;Sposta a…</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>Assegna nuovi numeri ai canali selezionati</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Sposta il canale selezionato al numero (da 1 a 9999):</numerusform>
            <numerusform>Sposta i canali selezionati al numero (da 1 a 9999):</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Sposta</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>esiste già un file con quel nome</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>il nome è troppo lungo</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>il disco o la rete non risponde</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>Nessun canale corrisponde alla ricerca e al tipo.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>La memoria non basta per questa lista. Chiudi altri programmi e riprova.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>La lista non ha nessuna delle pagine scelte.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>“%1” non è un file ordinario.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>non hai i permessi necessari</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>È possibile aprire solo file di questo computer.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>I numeri non bastano: finiscono a %1, e %n canale con un numero già usato non ne ha potuto ricevere uno libero. Salvando resterebbe con un numero basso, come radio.</numerusform>
            <numerusform>I numeri non bastano: finiscono a %1, e %n canali con numeri già usati non ne hanno potuto ricevere di liberi. Salvando resterebbero con numeri bassi, come radio.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>Non è stato trovato alcun canale, perché questo sembra una lista binaria e non un file di testo TLL.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Chiudi questo avviso</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>Il file è danneggiato alla riga %1, dopo il canale “%2”.</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>Il file è danneggiato alla riga %1, prima del primo canale completo.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>Il file è danneggiato alla riga %1.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>Il file dichiara la codifica %1, ma le sue lettere sono in UTF-8. Quillet lascia entrambe come sono; un televisore che si fida della dichiarazione mostra male le lettere accentate.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>“%1” è stato modificato da un altro programma. Con “Mantieni la mia” la lista resta com’è qui e il prossimo salvataggio sostituisce il file.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>“%1” non c’è più: è stato spostato, rinominato o eliminato, oppure il suo disco è stato rimosso. La lista è ancora in questa finestra; puoi salvarla altrove.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>“%1” non può più essere letto. %2 La lista è ancora in questa finestra; puoi salvarla altrove.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>Non è stato trovato alcun canale, perché non è stato possibile decodificare il testo JSON che li contiene (riga %1, colonna %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>Non è stato trovato alcun canale, perché il testo JSON che li contiene non è completo.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>Il file non è UTF-8 valido ed è stato decodificato come Latin-1. Il salvataggio scrive in UTF-8 e quindi cambia ogni lettera accentata in tutto il file.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>Dalla riga %1 in poi il file non è stato letto: lì contiene più campi, attributi o elementi annidati di qualsiasi lista di un televisore.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>Non è stato trovato alcun canale, perché questo è un testo di altro tipo e non un file TLL.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>Questo file non può essere modificato: il file, la sua cartella o il suo disco è protetto da scrittura. Per conservare le modifiche, salva una copia; “Salva” lo propone.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale (&lt;ITEM&gt;) che segue non è stato letto e andrebbe perso salvando questa lista.</numerusform>
            <numerusform>%n canali (&lt;ITEM&gt;) che seguono non sono stati letti e andrebbero persi salvando questa lista.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>Il seguito non è stato letto.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>i permessi di singoli utenti e gruppi</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>i suoi attributi estesi</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>il gruppo</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>gli altri suoi nomi, che indicano ancora la vecchia lista</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>il proprietario</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>alcuni dei suoi permessi</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>il disco non lo consente, o non ammette quel nome</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>il file o la sua cartella non c’è</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Apri</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>Questo file è aperto in un’altra finestra. Scegli un altro nome o un’altra cartella.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>Impossibile aprire “%1”.</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Apri una copia riparata</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Apri lista di canali</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>“%1” non contiene alcun ordine che si possa applicare.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>È una lista di canali completa, per esempio un’esportazione. Dalle un nome che finisce in .tll per usarne l’ordine.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>È una lista del tipo che conserva i canali come JSON. Lì gli identificatori sono numeri, con i quali non si riconoscono i canali di altre liste.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Righe di questa forma in questo file: %1. Altre righe: %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>I canali si riconoscono dagli identificatori di rete originale, di flusso di trasporto e di servizio, e nessuno dei suoi li ha tutti e tre insieme a un nome.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>Un file di testo deve avere almeno tre righe della forma “101;Sample TV;1-10-300” e al massimo altre due.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>Non contiene stazioni radio.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>Non contiene canali TV.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>Un ordine si può prendere da file TLL e da file di testo (.txt).</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>il sistema segnala l’errore %1</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>la memoria non basta</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>Questo è il file della lista stessa, che un’esportazione non sostituisce mai. Scegli un altro nome o un’altra cartella.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Conserva una copia del file originale prima di importarne uno modificato nel tuo televisore.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Scambia liste con i fogli di calcolo e stampale</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Sposta canali su un numero trascinando, digitando o con i tasti, con o senza vuoti</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>Porta l’ordine di un vecchio televisore su uno nuovo e confronta due liste canale per canale</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Due liste confrontate canale per canale</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>Una lista dei canali nella sua finestra</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet ordina sul tuo computer la lista dei canali di un televisore LG. Il televisore esporta i suoi canali su una chiavetta USB come file TLL; tu disponi centinaia di canali nell’ordine che vuoi e il televisore riprende il file.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>La prima versione.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Annulla ogni passo, recupera dopo un arresto anomalo le modifiche non salvate, ripristina versioni precedenti di un file</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>Modifica liste negli script e tienile in Git con lo strumento quillet-cli</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n riga degli appunti non indica alcun canale.</numerusform>
            <numerusform>%n righe degli appunti non indicano alcun canale.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>Impossibile mantenere i permessi di accesso del file: %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Colonne per:</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>Generale</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>Liste JSON</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Conservale per recuperarle dopo un arresto anomalo</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>Se è disattivato, un arresto anomalo fa perdere le modifiche non salvate. Ciò che è già conservato resta finché la lista non viene salvata o chiusa.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Conserva ciò che il salvataggio sostituisce</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Lingua:</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Ha effetto dal prossimo avvio di Quillet.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>Quella del sistema</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Domande</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Solo se non si perde nulla. Quillet chiede sempre prima che vadano persi modifiche, canali o ciò che altri hanno scritto in un file.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>Salva riparate le liste JSON senza chiedere</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Salvataggio</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Mostra cartella</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Tabella</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Dimensione del testo:</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Preferenze</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>Per ogni file, oltre alla prima:</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Versioni precedenti</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>La prima versione di ogni file resta sempre. Oltre i limiti, al salvataggio successivo vengono eliminate le più vecchie. Disattivare l’opzione non elimina nulla. Anche quillet‑cli segue queste impostazioni.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Spazio per tutte:</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>In uso: %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>Liste XML</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>Nel frattempo l’anteprima è cambiata; questa è quella nuova.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numero verrebbe assegnato più volte.</numerusform>
            <numerusform>%n numeri verrebbero assegnati più volte.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numero è assegnato più volte nella tabella.</numerusform>
            <numerusform>%n numeri sono assegnati più volte nella tabella.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numero è assegnato là più volte.</numerusform>
            <numerusform>%n numeri sono assegnati là più volte.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>È compresa %n riga spuntata che non è mostrata.</numerusform>
            <numerusform>Sono comprese %n righe spuntate che non sono mostrate.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n blocco cambia</numerusform>
            <numerusform>%n blocchi cambiano</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale riceve un altro numero o posto</numerusform>
            <numerusform>%n canali ricevono un altro numero o posto</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>Le due liste non hanno alcun canale in comune.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>Non cambierebbe nulla.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Anteprima…</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Canali trovati: %1. Vanno alla fine: %2. Voci senza canale: %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale spuntato va al numero %1, dove ora c’è “%2”.</numerusform>
            <numerusform>%n canali spuntati vanno al numero %1, dove ora c’è “%2”.</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>Non si può spostare nulla: nessuna riga corrisponde a un canale della lista mostrata.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>Nessuna riga è spuntata: spunta i canali da spostare.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale viene rinominato</numerusform>
            <numerusform>%n canali vengono rinominati</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Solo la selezione: %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n contrassegno di salto cambia</numerusform>
            <numerusform>%n contrassegni di salto cambiano</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>La lista viene messa nell’ordine dei suoi numeri.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale il cui numero viene occupato va alla fine: %1.</numerusform>
            <numerusform>%n canali i cui numeri vengono occupati vanno alla fine: %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n riga non corrisponde ad alcun canale.</numerusform>
            <numerusform>%n righe non corrispondono ad alcun canale.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n riga incerta o di un’altra lista non è spuntata.</numerusform>
            <numerusform>%n righe incerte o di un’altra lista non sono spuntate.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>solo %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Stazioni radio, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>“%1”</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>Canali TV, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>Non è stato possibile stampare “%1”.</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>Non è stato possibile aprire la stampante o il file, oppure non sono state accettate tutte le pagine.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>Stampa su file</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>Non è stato possibile stampare la lista in “%1”.</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Ripristina</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>Impossibile ripristinare la versione.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>I suoi canali non sono uno per uno gli stessi della lista attuale; si può soltanto aprire.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>La lista è ora com’era allora.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>Ripristinarla è un solo passo, che si può annullare; non viene salvato nulla.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>la tua quota di disco è esaurita</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radio</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>Impossibile verificare il nuovo file. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>il disco è protetto da scrittura</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 non esiste più.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Liste recenti</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Modifiche</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>Ciò che era stato conservato delle modifiche è danneggiato.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>Non è stato possibile recuperare tutto.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Cartella</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Nome</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>Le modifiche sono state conservate da una versione più recente del programma.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>È uno stato precedente di una lista appena recuperata. Resta conservato: scartalo, oppure recuperalo quando l’altra è chiusa.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>La lista è aperta in una finestra e lì è stata modificata. Prima salva o scarta quelle modifiche.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>La lista prima delle modifiche si trova in %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>Il programma è terminato prima che queste modifiche fossero salvate. Sono state conservate e si possono recuperare.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Ultima modifica</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Liste non salvate</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>Illeggibile</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Ricarica</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>Vuoi rileggere “%1” dal disco?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>Le modifiche non salvate andranno perse.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Rimuovi dalla lista</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>Contiene modifiche non salvate in liste che non sono visualizzate. Se apri qui il file trascinato, andranno perse.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>Il nuovo file non ha potuto sostituire quello vecchio: %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>Sostituire la lista di canali “%1”?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>Impossibile rileggere “%1”. La lista in questa finestra resta com’è.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>Vuoi ripristinare l’ultima versione salvata di “%1”?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>Tutte le modifiche fatte da allora andranno perse.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Salva riparate tutte le liste di questo tipo (JSON), senza chiedere</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale perderebbe parte dei suoi dati: %1</numerusform>
            <numerusform>%n canali perderebbero parte dei loro dati: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale comparirebbe due volte: %1</numerusform>
            <numerusform>%n canali comparirebbero due volte: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>Le lettere accentate verrebbero scritte in UTF-8, che non è la codifica dichiarata dal file.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>Un’esportazione ha solo questa forma. Il tuo file resta com’è.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Andrebbero persi commenti o dettagli aggiuntivi tra i canali.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>Controllo che salvando “%1” non vada perso nulla…</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>Salvando “%1” qualcosa andrebbe perso.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Mancherebbe %n canale: %1</numerusform>
            <numerusform>Mancherebbero %n canali: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>Non c’è modo di scrivere questo file perdendo di meno. Conserva una copia del vecchio file prima di salvare.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numero o valore ripetuto della lista JSON verrebbe scritto in altra forma o perso.</numerusform>
            <numerusform>%n numeri o valori ripetuti della lista JSON verrebbero scritti in altra forma o persi.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>Il file salvato non potrebbe più essere aperto.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale riceverebbe un altro numero: %1</numerusform>
            <numerusform>%n canali riceverebbero un altro numero: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>Con “Salva la versione riparata” non va perso nulla: vengono scritte le modifiche e tutto il resto rimane com’è stato letto.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>“Salva la versione riparata” scrive le modifiche e lascia tutto il resto com’è stato letto, ma anche così:</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>Andrebbe perso ciò che il televisore conserva prima o dopo i canali.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Tutto ciò che segue un punto danneggiato del file andrebbe perso.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale dopo un punto danneggiato del file non è mai stato letto e andrebbe perso.</numerusform>
            <numerusform>%n canali dopo un punto danneggiato del file non sono mai stati letti e andrebbero persi.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>trovato dal nome</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>compare più volte</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>là in un’altra lista</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>altri dati</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>non corrisponde ad alcun canale</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>non bloccato là</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>bloccato là</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>incerto: nome simile</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>altro numero</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>solo qui</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>solo là</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>altro nome</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>non saltato là</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>saltato là</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>va alla fine</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>incerto</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Lista di esempio</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Salva</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Salva comunque</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Salva con nome…</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Salva lista di canali con nome</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>Vuoi salvare le modifiche apportate a “%1”?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Se non salvi le modifiche, andranno perse.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Salva una copia…</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Salva una copia</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>Impossibile salvare “%1”. Il file sul disco non è stato modificato.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>“%1” non c’è più. Vuoi salvare la lista altrove?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>Il file è stato spostato, rinominato o eliminato. Se è stato eliminato, la lista esiste solo in questa finestra.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Salva qui comunque</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Salva la versione riparata</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Salva lista di canali</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Salva senza conservarla</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Salva senza %n canale</numerusform>
            <numerusform>Salva senza %n canali</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Nome del canale</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>&amp;Cerca:</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Virgola</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Punto e virgola</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Tabulazione</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Canali abbinati: %1
Canali non abbinati: %2
Questi proseguono dal numero: %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>L’ordine di “%1” è stato applicato.</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Tipo di ricezione</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Passo per passo: dal televisore e ritorno</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>Per averne uno, inserisci una chiavetta USB nel televisore e cerca nelle sue impostazioni, tra quelle dei canali, una voce che copia o esporta la lista dei canali su USB. Inserisci poi la chiavetta in questo computer, fai una copia del file e aprila.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>Che cos’è un file TLL?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>È la lista dei canali di un televisore: i suoi canali e i loro numeri. Il televisore la scrive su una chiavetta USB, qui la metti in ordine e poi il televisore la rilegge.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>canale</numerusform>
            <numerusform>canali</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Canali</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordinamento di %n canale</numerusform>
            <numerusform>Ordinamento di %n canali</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Riempimento dei vuoti</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>Importazione di “%1”</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Blocco di %n canale</numerusform>
            <numerusform>Blocco di %n canali</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Spostamento di %n canale</numerusform>
            <numerusform>Spostamento di %n canali</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>Ordine di %1</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>Versione del %1</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Cambio del nome in “%1”</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Salto di %n canale</numerusform>
            <numerusform>Salto di %n canali</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Scambio dei numeri</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>Ripresa da “%1”</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Sblocco di %n canale</numerusform>
            <numerusform>Sblocco di %n canali</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Fine del salto di %n canale</numerusform>
            <numerusform>Fine del salto di %n canali</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Blocchi</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Nomi</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Numeri e ordine</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Riprendi:</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Riprendi tutti</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Riprendi selezionati</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Salti</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>I canali selezionati sono già alla fine</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>I canali selezionati sono già all’inizio</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>Questa colonna è sempre visibile</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>Il file non lo indica per nessun canale di questa lista</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>Le colonne sono già quelle abituali</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>Da questa colonna si riconoscono i canali all’importazione, qualunque siano ordine e numeri</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>I tipi si possono scegliere solo per i canali TV</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>I canali visualizzati sono di un altro tipo di ricezione; azzera prima la ricerca e il tipo</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>Non c’è alcun file da rileggere sul disco</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>Il file non indica alcun canale criptato</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>Nessuna riga è selezionata.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Apri una lista, o scegli un tipo di ricezione, che contenga canali</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Apri un file che contenga canali di questo tipo di ricezione</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>Non ci sono altri passi in questa direzione</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>Gli appunti non contengono righe che indichino canali</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>La lista non è stata letta da un file</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>Il file non indica questo dato per questi canali</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>A ogni salvataggio viene conservata la versione sostituita del file; di questa lista non ce n’è ancora nessuna</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>Questa pagina ha già i valori predefiniti</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>I nomi si possono cambiare solo nella lista analogica</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Scrivi prima qualcosa nel campo di ricerca</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Seleziona prima dei canali nella lista</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Seleziona prima esattamente due canali</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>Dalle righe selezionate non si può riprendere nulla.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>Nessuna delle righe selezionate è spuntata.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>Non ci sono abbastanza canali da ordinare</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>La conservazione delle versioni precedenti è disattivata nelle preferenze</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>In tutto il file: TV e radio, di ogni tipo di ricezione</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale è ora in un altro posto</numerusform>
            <numerusform>%n canali sono ora in un altro posto</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>Le modifiche a “%1” sono tornate, ma non sono ancora salvate</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Vuoti riempiti: %n numero cambiato</numerusform>
            <numerusform>Vuoti riempiti: %n numeri cambiati</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>Esportato in %1, come lista di canali completa.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>Esportato in %1.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>Nulla è stato cambiato: le righe sono ancora quelle di “%1”, ma è scelto “%2”</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale cambiato secondo “%1”</numerusform>
            <numerusform>%n canali cambiati secondo “%1”</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale bloccato</numerusform>
            <numerusform>%n canali bloccati</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale spostato al %1</numerusform>
            <numerusform>%n canali spostati al %1</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale spostato verso il basso</numerusform>
            <numerusform>%n canali spostati verso il basso</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale spostato alla fine</numerusform>
            <numerusform>%n canali spostati alla fine</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale spostato all’inizio</numerusform>
            <numerusform>%n canali spostati all’inizio</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale spostato verso l’alto</numerusform>
            <numerusform>%n canali spostati verso l’alto</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>Nulla è stato scritto: c’è ancora una domanda aperta su questa lista</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>Nessun canale della lista contiene “%1” nel nome</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>“%1” è stato salvato, ma il file ha perso: %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>Le modifiche a “%1” andrebbero perse in un arresto anomalo, perché non si possono conservare a parte: %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>Nulla è stato spostato: il numero deve essere compreso tra 1 e %1</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>Nulla ripreso: nel frattempo la lista è cambiata</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>Ordine di “%1” applicato</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>È stato preso solo “%1”: questa finestra contiene una sola lista. È stato rilasciato %n altro file</numerusform>
            <numerusform>È stato preso solo “%1”: questa finestra contiene una sola lista. Sono stati rilasciati altri %n file</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n altro numero cambiato</numerusform>
            <numerusform>altri %n numeri cambiati</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n altro spostato alla fine</numerusform>
            <numerusform>altri %n spostati alla fine</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>Nulla è stato spostato: i canali, o la riga in cui metterli, non sono più nella lista visualizzata</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>Nulla è stato spostato: i canali sono già lì</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>Stampato in %1.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>Versione del %1 ripristinata</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Ripetuto: %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>“%1” è stato riletto dal disco</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Canale rinominato in “%1”</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Versione riparata salvata, come hai scelto: non è andato perso nulla.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>“%1” è tornato com’era all’ultimo salvataggio</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>Questa lista è inventata, per fare prove. Nessuno dei tuoi file viene modificato.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>Salvato in %1.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale verrà saltato</numerusform>
            <numerusform>%n canali verranno saltati</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>I canali %1 e %2 si sono scambiati i numeri</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale ripreso da “%1”</numerusform>
            <numerusform>%n canali ripresi da “%1”</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>“%1” non è cambiato sul disco</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Annullato: %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale sbloccato</numerusform>
            <numerusform>%n canali sbloccati</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canale non verrà più saltato</numerusform>
            <numerusform>%n canali non verranno più saltati</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Passaggio a un altro passo della cronologia</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>il file supera la dimensione consentita</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>ci sono troppi file aperti</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Prova un esempio</translation>
    </message>
    <message id="kTV">
        <source></source>
        <translation>&amp;TV</translation>
    </message>
    <message id="kTypeFilter">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="kUndoLink">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>Non è stato possibile conservare la versione di “%1” che verrebbe sostituita.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>Salvando viene sostituita definitivamente: non sarà tra le versioni precedenti, che vengono conservate in “%1”.</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>Ciò che ora si trova al posto di “%1” non può essere letto.</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>Non si può sapere se un altro programma ha modificato il file. Se salvi ora, ciò che vi si trova andrà perso.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>“%1” è stato scritto, ma il disco non conferma che sia salvato in modo sicuro.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>La lista resta contrassegnata come modificata. Salvala di nuovo, oppure salva una copia su un altro disco.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Senza titolo</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>il sistema non indica il motivo</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>Il file danneggiato viene lasciato com’è. Scegli un altro nome o un’altra cartella.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Colonne abituali</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Confronta…</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Danneggiata o mancante; non si può più leggere</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>Questa versione è danneggiata: non è più ciò che era stato conservato.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>Rispetto a ora</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (la prima)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>Non se ne può leggere alcuna lista di canali</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Apri</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Confronto in corso…</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>Che cosa conteneva “%1” prima di essere sovrascritto:</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Dimensione</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Un altro programma sta conservando da troppo tempo una versione in “%1”.</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>Tutti i canali</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Versioni precedenti</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>Quanto già conservato di questo file in “%1” al momento non può essere letto.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Ultima modifica</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Sconosciuta</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>Il disco non ha accettato l’intero file: %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>“%1” è protetto da scrittura.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>corrispondenza</numerusform>
            <numerusform>corrispondenze</numerusform>
        </translation>
    </message>
</context>
</TS>
