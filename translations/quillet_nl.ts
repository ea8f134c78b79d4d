<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Ongeldige bestandsindeling</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Quillet-help</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>Gemaakt met %1.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Copyright 2026 De auteurs van Quillet. Vrije software onder de MIT-licentie.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>Sorteert de zenderlijsten van LG-televisies.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>Over Quillet</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Versie %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analoog</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 en nog %n</numerusform>
            <numerusform>%1 en nog %n</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Antenne</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>Volgorde toe&amp;passen…</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Deze lijst in de volgorde van een andere zetten</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Kies een referentielijst</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Rangschikt de %n getoonde zender binnen de nummers die deze nu heeft.</numerusform>
            <numerusform>Rangschikt alle %n getoonde zenders binnen de nummers die ze nu hebben.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Versleuteling</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Frequentie</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Naam</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Netwerk</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Nummer</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Satelliet</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>Dienst-ID</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Type (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Richting</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Aflopend</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Versleutelde eerst</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Rangschikken op:</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>Vrije eerst</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>Al deze zenders staan al in deze volgorde.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Niets anders</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Rangschikken</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender zou van plaats veranderen.</numerusform>
            <numerusform>%n zenders zouden van plaats veranderen.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Rangschikt de %n geselecteerde zender binnen de nummers die deze nu heeft.</numerusform>
            <numerusform>Rangschikt de %n geselecteerde zenders binnen de nummers die ze nu hebben.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>&amp;Daarna op:</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>Daar&amp;na op:</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Zenders sorteren binnen de nummers die ze hebben</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Zenders rangschikken</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Oplopend</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>Bestanden van dit type kunnen niet worden gebruikt</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>De sectie %1 bevat geen zenderlijst.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>De eerste zender van de sectie %1 staat %n teken na het begin van de sectie; er zijn er hoogstens %2 toegestaan.</numerusform>
            <numerusform>De eerste zender van de sectie %1 staat %n tekens na het begin van de sectie; er zijn er hoogstens %2 toegestaan.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Nummers toch wijzigen</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender zou een nummer krijgen dat een zenderlijst niet kan bevatten.</numerusform>
            <numerusform>%n zenders zouden nummers krijgen die een zenderlijst niet kan bevatten.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>Het hoogste nummer is %1. Een zender daarboven krijgt een laag nummer, zoals 0, en wordt soms als radio gemarkeerd.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Terughalen</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Kabel</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>Annuleren</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>“%1” is door een ander programma gewijzigd.</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>Als u nu opslaat, gaan de wijzigingen van het andere programma verloren.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Andere plaats kiezen…</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Zoekopdracht en type wissen</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Menu wissen</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Zoekopdracht wissen</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Klembord</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Sluiten</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Sluiten zonder op te slaan</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Slot</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Versleuteld</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Frequentie</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Verborgen</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Naam</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Netwerk</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>Netwerk-ID</translation>
    </message>
    <message id="kColumnNumber">
        <source></source>
        <translation>Nr.</translation>
    </message>
    <message id="kColumnNumberFull">
        <source></source>
        <translation>Nummer</translation>
    </message>
    <message id="kColumnSatellite">
        <source></source>
        <translation>Satelliet</translation>
    </message>
    <message id="kColumnServiceId">
        <source></source>
        <translation>Dienst</translation>
    </message>
    <message id="kColumnServiceIdFull">
        <source></source>
        <translation>Dienst-ID</translation>
    </message>
    <message id="kColumnSkipped">
        <source></source>
        <translation>Overslaan</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Stroom</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>Transportstroom-ID</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>Alle lijsten</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Toepassen</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>Op het klembord</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Verschil</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>Er is geen verschil.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>“%1” bevat geen lijst om mee te vergelijken.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>De schijf heeft niet bewaard wat er is geschreven. Mogelijk is de schijf vol of beschadigd.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Andere gegevens</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Vergelijken met</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>Past bij geen zender</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Overslaan of slot</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>Lijst</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Verplaatsen</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Ander nummer</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (zoals gelezen)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Naam daar</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1 van %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (zoals om %2)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>Geen zender is van een hierboven aangevinkte soort en past bij de zoekopdracht.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>Hierin verschilt niets</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>Nieuw nr.</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>Nr. daar</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Alleen hier</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Alleen daar</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Plakken</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Andere naam</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Gelijk</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Vergeleken zenders</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Overnemen</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>Vergelijking met “%1”</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>Wijzigingen uit “%1”</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>Volgorde van “%1”</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Te plakken zenders</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Gaat naar het einde</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Onzeker</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>Het bestand is leeg of geen zenderlijst.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>Als u een kopie opslaat, gaat dit venster met de kopie verder: “Opslaan” schrijft voortaan daarin.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>In de map “%1” kon geen nieuw bestand worden gemaakt: %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>De zenderlijsten van LG-televisies sorteren</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Zenderlijst-editor</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, zender, kanaal, televisie, tv, radio, satelliet, kabel, sorteren</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Televisie:</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender minder</numerusform>
            <numerusform>%n zenders minder</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender met andere gegevens</numerusform>
            <numerusform>%n zenders met andere gegevens</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender die sindsdien weg is</numerusform>
            <numerusform>%n zenders die sindsdien weg zijn</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender met een ander kinderslot</numerusform>
            <numerusform>%n zenders met een ander kinderslot</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender meer</numerusform>
            <numerusform>%n zenders meer</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender met een andere naam</numerusform>
            <numerusform>%n zenders met andere namen</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>zonder %n die nieuw is</numerusform>
            <numerusform>zonder %n die nieuw zijn</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender op een ander nummer</numerusform>
            <numerusform>%n zenders op andere nummers</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>Dezelfde zenders in een andere volgorde</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>Dezelfde zenders in dezelfde volgorde</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender met een andere overslaanmarkering</numerusform>
            <numerusform>%n zenders met andere overslaanmarkeringen</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>Verwerpen</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Wijzigingen verwerpen</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>Niet alles kon worden verworpen. Een ander programma gebruikt deze mappen, of er mag daar niets worden verwijderd:</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>Wilt u de niet-opgeslagen wijzigingen in “%1” verwerpen?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Wilt u de niet-opgeslagen wijzigingen in %n lijst verwerpen?</numerusform>
            <numerusform>Wilt u de niet-opgeslagen wijzigingen in %n lijsten verwerpen?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>Daarna kunnen ze niet meer worden teruggehaald.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>Wilt u niet-opgeslagen wijzigingen verwerpen die onleesbaar zijn?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>de schijf meldt een fout; mogelijk is de schijf beschadigd</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>er is geen ruimte meer op de schijf</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>de schijf is losgekoppeld</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>UTF-8 met kenmerk (voor spreadsheets)</translation>
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
        <translation>Windows-1252 (West-Europa)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>De enige zender van deze lijst</numerusform>
            <numerusform>Alle %n zenders van deze lijst</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender heeft geen volledige ID’s en wordt alleen aan zijn naam herkend.</numerusform>
            <numerusform>%n zenders hebben geen volledige ID’s en worden alleen aan hun naam herkend.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>In %n naam staan komma’s en spaties voor puntkomma’s en regeleinden; aan die naam wordt de zender niet herkend.</numerusform>
            <numerusform>In %n namen staan komma’s en spaties voor puntkomma’s en regeleinden; aan die namen worden de zenders niet herkend.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>&amp;Codering:</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>Er wordt een kopie van de hele zenderlijst geschreven onder de naam die u kiest. Het bestand van dit venster blijft zoals het is. De volgorde van de kopie kan op andere lijsten worden toegepast als de naam op “.tll” eindigt.</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>De lijst kon niet als “%1” worden geëxporteerd.</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Indeling:</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>&amp;Met zendersleutels, om wijzigingen te importeren</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Lijst exporteren</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n teken bestaat niet in deze codering; daarvoor staat “?” in de plaats.</numerusform>
            <numerusform>%n tekens bestaan niet in deze codering; daarvoor staat “?” in de plaats.</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender heeft getallen als ID’s: lijsten met ID’s als tekst herkennen hem daaraan, deze lijst alleen aan zijn naam.</numerusform>
            <numerusform>%n zenders hebben getallen als ID’s: lijsten met ID’s als tekst herkennen ze daaraan, deze lijst alleen aan hun naam.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Exporteren…</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Pagina om af te drukken (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Referentielijst om een volgorde toe te passen (tekst)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n hernoemde zender heeft geen volledige ID’s: hij wordt pas herkend als de lijst is opgeslagen en opnieuw geopend.</numerusform>
            <numerusform>%n hernoemde zenders hebben geen volledige ID’s: ze worden pas herkend als de lijst is opgeslagen en opnieuw geopend.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>&amp;Scheidingsteken:</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Alleen de ene die wordt getoond</numerusform>
            <numerusform>Alleen de %n die worden getoond</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Zenders:</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Tabel voor spreadsheets (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Exporteren als referentielijst (kopie van het hele bestand)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>Een volgorde wordt uit minstens drie zenders gelezen: dit bestand zou niet toe te passen zijn.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>“%1” zegt niet of de zender deze markering heeft; 1 of 0 wel.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>“%1” is geen nummer van 1 tot 16383.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Regel %1, kolom %2 “%3”:</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>Er zijn twee kolommen “%1”.</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>De eerste rij moet de titels van de kolommen hebben zoals ze zijn geëxporteerd, waaronder “Naam”, “Dienst” of “stationKey”.</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>Er zijn geen rijen met zenders.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Regel %1, teken %2:</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>Er staat tekst achter een sluitend aanhalingsteken.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>De tabel is te groot.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>“%1” staat in geen kolom met een titel.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>Hier begint een aanhalingsteken dat nergens eindigt.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>Dit is geen tekstbestand.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>Er staat geen bestand op “%1”.</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>Bestand</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>Het bestand is veel te groot voor een zenderlijst.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>Het bestand kon niet worden gelezen: %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>&amp;Gaten vullen</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>De lijst zonder gaten 1, 2, 3… nummeren, nu en na elke verplaatsing</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>Alle typen</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>Alle bestanden</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Zenderlijsten</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Overige</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>HTML-pagina’s</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Referentielijsten</translation>
    </message>
    <message id="kFilterSD">
        <source></source>
        <translation>SD</translation>
    </message>
    <message id="kFilterTables">
        <source></source>
        <translation>Tabellen</translation>
    </message>
    <message id="kFilterTextFiles">
        <source></source>
        <translation>Tekstbestanden</translation>
    </message>
    <message id="kFilterTV">
        <source></source>
        <translation>Tv</translation>
    </message>
    <message id="kFilterUHD">
        <source></source>
        <translation>UHD</translation>
    </message>
    <message id="kFolderGoneMessage">
        <source></source>
        <translation>De map “%1” is er niet meer.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>De map is verplaatst of verwijderd, of de schijf is losgekoppeld. Er is niets opgeslagen en niets verloren: de lijst staat met alle wijzigingen nog in dit venster.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>op die plaats staat een map</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>Er kon geen programma worden gestart dat de map “%1” toont.</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>Deze zenders komen van “%1”. Wis de zoekopdracht en het type om “%2” te zien.</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>“%1” is er niet meer.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>Het bestand is verplaatst of verwijderd, of de schijf waarop het stond is losgekoppeld. Als u hier opslaat, ontstaat op die plek een nieuw bestand; wilt u het op een USB-stick, sluit die dan eerst aan.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Terug</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Zoeken</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Zoekbalk sluiten</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Resultaat %1 van %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Op deze pagina zoeken</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Volgend resultaat</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>Niet gevonden op deze pagina</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Vorig resultaat</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Een woord op deze pagina zoeken</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>Vooruit</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Startpagina</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Openen in browser</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>Openen in Chrome</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Navigatie</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>Er is geen zenderlijst geopend</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Sleep een TLL-bestand van uw televisie naar dit venster of kies er een.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>Deze ontvangstbron heeft geen radiozenders</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>Geen zenders</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>Dit bestand bevat geen zenders. U kunt een ander TLL-bestand hierheen slepen.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>Deze ontvangstbron heeft geen tv-zenders</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Bestand openen…</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Radiozenders van dit soort lijst worden niet getoond</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Wat ze daarvan bevat, blijft in het bestand staan.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>De radiozenders ervan tonen</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>De tv-zenders ervan tonen</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Huidig</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Oudste bewaarde stap</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (opgeslagen)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>Lijst zoals geopend</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>Geschiedenis</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Ongedaan gemaakt</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>De tabel heeft geen kolom “stationKey”: er worden zenders alleen aan hun naam herkend.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Nummers en volgorde van de rijen zijn allebei gewijzigd en komen niet overeen: de nummers tellen.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>De nummers zijn ongewijzigd, maar de rijen staan in een andere volgorde: de zenders krijgen de volgorde van de rijen.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>“%1” kan niet worden geïmporteerd. De lijst blijft zoals ze is.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>De rijen horen bij een andere lijst van dit bestand: %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>De tabel noemt geen nummers: de zenders krijgen de volgorde van de rijen.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Wijzigingen uit een tabel importeren</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n rij is onduidelijk: de sleutel en de naam passen niet bij elkaar, of de zender staat er nog eens.</numerusform>
            <numerusform>%n rijen zijn onduidelijk: sleutel en naam passen niet bij elkaar, of een zender staat er meermaals.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Kolommen die niet worden gelezen: %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n rij van de tabel noemt geen zender.</numerusform>
            <numerusform>%n rijen van de tabel noemen geen zender.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Info…</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>Inhoud</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Veld</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Velden van de zender</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Alle velden van de geselecteerde zender tonen</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>een ander programma gebruikt het</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>“%1” is een map.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Mijn versie behouden</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>Nederlands</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Later</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>De koppeling naar het bestand verwijst terug naar zichzelf.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>De zenderlijst kon niet worden geopend.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Hier kan niets worden overgenomen</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1: niet aangevinkt</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1: aangevinkt</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n los “&amp;”-teken is hersteld.</numerusform>
            <numerusform>%n losse “&amp;”-tekens zijn hersteld.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n los “&lt;”-teken is hersteld.</numerusform>
            <numerusform>%n losse “&lt;”-tekens zijn hersteld.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n stuurteken is verwijderd.</numerusform>
            <numerusform>%n stuurtekens zijn verwijderd.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>De laatste zender was afgekapt; wat ervan volledig is, is behouden.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>De laatste zender was afgekapt en moest worden weggelaten.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>Het einde van het bestand ontbrak en is toegevoegd.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n stuk tekst buiten de lijst is verwijderd.</numerusform>
            <numerusform>%n stukken tekst buiten de lijst zijn verwijderd.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ontbrekende of verkeerde tag is hersteld.</numerusform>
            <numerusform>%n ontbrekende of verkeerde tags zijn hersteld.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>Dit is een herstelde kopie van “%1”. Het bestand zelf blijft zoals het is.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>&amp;Over Quillet</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>&amp;JSON-lijsten hersteld opslaan</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;loog</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Antenne</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>Volgor&amp;de toepassen…</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>R&amp;angschikken…</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Kabel</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>Sl&amp;uiten</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>Kolo&amp;mmen</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Vergelij&amp;ken met</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>Andere &amp;lijst…</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>Bestand zoals het is &amp;gelezen</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>Kopië&amp;ren</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>Be&amp;werken</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>&amp;Exporteren als referentielijst…</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>E&amp;xporteren…</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;Bestand</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>&amp;Gaten vullen</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>Alle t&amp;ypen</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>&amp;Overige</translation>
    </message>
    <message id="kMenuFilterSD">
        <source></source>
        <translation>S&amp;D</translation>
    </message>
    <message id="kMenuFilterTV">
        <source></source>
        <translation>Alleen t&amp;v</translation>
    </message>
    <message id="kMenuFilterUHD">
        <source></source>
        <translation>&amp;UHD</translation>
    </message>
    <message id="kMenuFind">
        <source></source>
        <translation>&amp;Zoeken</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>&amp;Volgende zoeken</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>V&amp;orige zoeken</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Zoeken…</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>Quillet-&amp;help</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>&amp;Help</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>&amp;Geschiedenis</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>W&amp;ijzigingen importeren…</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>Zender&amp;info</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>&amp;Kinderslot</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>Om&amp;laag verplaatsen</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>&amp;Verplaatsen naar…</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>Naar het &amp;einde verplaatsen</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>Naar het &amp;begin verplaatsen</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>Om&amp;hoog verplaatsen</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;Nieuw</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>&amp;Openen…</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>&amp;Recent geopend</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>&amp;Plakken</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>Ins&amp;tellingen…</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>Af&amp;drukken…</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>&amp;Compact afdrukken…</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>&amp;Radiozenders</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>&amp;Herstelmap openen</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>Opnie&amp;uw uitvoeren</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>%1 opnie&amp;uw uitvoeren</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>Opnieuw &amp;laden van schijf</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>Her&amp;noemen</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>&amp;Wijzigingen verwerpen</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>&amp;Voorbeeld proberen</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>&amp;Satelliet</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>Op&amp;slaan</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>O&amp;pslaan als…</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>&amp;Selecteren</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;Alle</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>&amp;Versleutelde</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>Selectie &amp;omkeren</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>&amp;Geen</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>Zelfde &amp;type</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>&amp;Overslaan</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>Nummers &amp;wisselen</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>&amp;Groter</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normaal</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>T&amp;ekstgrootte</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>&amp;Tv-zenders</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>Ongedaan &amp;maken</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>%1 ongedaan &amp;maken</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>Niet-op&amp;geslagen lijsten…</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>Eerdere &amp;versies…</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>Bee&amp;ld</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>LG-zenderlijst</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>&amp;Verplaatsen naar…</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>De geselecteerde zenders nieuwe nummers geven</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>De geselecteerde zender verplaatsen naar nummer (1 tot en met 9999):</numerusform>
            <numerusform>De geselecteerde zenders verplaatsen naar nummer (1 tot en met 9999):</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Verplaatsen</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>er is al een bestand met die naam</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>de naam is te lang</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>de schijf of het netwerk reageert niet</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>Geen enkele zender komt overeen met de zoekopdracht en het type.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>Er is niet genoeg geheugen voor deze lijst. Sluit andere programma’s en probeer het opnieuw.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>De lijst heeft geen van de gekozen pagina’s.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>“%1” is geen gewoon bestand.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>u hebt daarvoor geen toegangsrechten</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>Alleen bestanden op deze computer kunnen worden geopend.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>De nummers zijn op: ze eindigen bij %1, en %n zender met een dubbel nummer kon geen vrij nummer krijgen. Bij het opslaan houdt die een laag nummer, als radio.</numerusform>
            <numerusform>De nummers zijn op: ze eindigen bij %1, en %n zenders met dubbele nummers konden geen vrije nummers krijgen. Bij het opslaan houden die lage nummers, als radio.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>Er zijn geen zenders gevonden, want dit lijkt een binaire lijst en geen TLL-tekstbestand.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Deze melding sluiten</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>Het bestand is beschadigd op regel %1, na de zender “%2”.</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>Het bestand is beschadigd op regel %1, vóór de eerste volledige zender.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>Het bestand is beschadigd op regel %1.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>Het bestand geeft de codering %1 op, maar de letters zijn UTF-8. Quillet laat beide zoals ze zijn; een televisie die de opgave gelooft, toont letters met accenten verkeerd.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>“%1” is door een ander programma gewijzigd. Met “Mijn versie behouden” blijft de lijst zoals ze hier is en vervangt de volgende keer opslaan het bestand.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>“%1” is er niet meer: het bestand is verplaatst, hernoemd of verwijderd, of de schijf is losgekoppeld. De lijst staat nog in dit venster; u kunt haar elders opslaan.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>“%1” kan niet meer worden gelezen. %2 De lijst staat nog in dit venster; u kunt haar elders opslaan.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>Er zijn geen zenders gevonden, want de JSON-tekst waarin ze staan kon niet worden gedecodeerd (regel %1, kolom %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>Er zijn geen zenders gevonden, want de JSON-tekst waarin ze staan is niet volledig.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>Het bestand is geen geldige UTF-8 en is als Latin-1 gedecodeerd. Bij het opslaan wordt UTF-8 geschreven, wat in het hele bestand elke letter met een accent verandert.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>Vanaf regel %1 is het bestand niet gelezen: het bevat daar meer velden, attributen of geneste elementen dan welke lijst van een tv-toestel ook.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>Er zijn geen zenders gevonden, want dit is een ander soort tekst en geen TLL-bestand.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>Dit bestand kan niet worden gewijzigd: het bestand, de map of de schijf is tegen schrijven beveiligd. Sla een kopie op om uw wijzigingen te bewaren; “Opslaan” biedt dat aan.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n volgende zender (&lt;ITEM&gt;) is niet gelezen en gaat verloren als u deze lijst opslaat.</numerusform>
            <numerusform>%n volgende zenders (&lt;ITEM&gt;) zijn niet gelezen en gaan verloren als u deze lijst opslaat.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>Wat volgt is niet gelezen.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>de rechten van afzonderlijke gebruikers en groepen</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>zijn uitgebreide kenmerken</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>zijn groep</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>zijn andere namen, die nog voor de oude lijst staan</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>zijn eigenaar</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>enkele van zijn toegangsrechten</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>de schijf staat dat of die naam niet toe</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>het bestand of de map is er niet</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Openen</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>Dit bestand is in een ander venster geopend. Kies een andere naam of een andere map.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>“%1” kon niet worden geopend.</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Herstelde kopie openen</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Zenderlijst openen</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>“%1” bevat geen volgorde die kan worden toegepast.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>Het is een volledige zenderlijst, zoals een export. Geef het een naam die eindigt op .tll om de volgorde over te nemen.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>Het is een lijst van het soort dat zijn zenders als JSON bewaart. Daar zijn de ID’s getallen, waaraan zenders van andere lijsten niet worden herkend.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Regels van die vorm in dit bestand: %1. Andere regels: %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>Zenders worden herkend aan original network id, transport stream id en service id, en geen van de zenders in dit bestand heeft ze alle drie en een naam.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>Een tekstbestand moet minstens drie regels van de vorm “101;Sample TV;1-10-300” hebben en hoogstens twee andere.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>Het bevat geen radiozenders.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>Het bevat geen tv-zenders.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>Een volgorde kan worden overgenomen uit TLL-bestanden en tekstbestanden (.txt).</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>het systeem meldt fout %1</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>er is niet genoeg geheugen</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>Dit is het bestand van de lijst zelf, dat door exporteren nooit wordt vervangen. Kies een andere naam of een andere map.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Bewaar een kopie van het oorspronkelijke bestand voordat u een gewijzigd bestand in uw televisie importeert.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Lijsten uitwisselen met rekenbladen en ze afdrukken</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Zenders naar een nummer verplaatsen door te slepen, te typen of met toetsen, met of zonder gaten</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>De volgorde van een oude televisie op een nieuwe overnemen en twee lijsten zender voor zender vergelijken</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Twee lijsten, zender voor zender vergeleken</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>Een zenderlijst in haar venster</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet sorteert de zenderlijst van een LG-televisie op uw computer. De televisie exporteert haar zenders als TLL-bestand naar een USB-stick; u zet honderden zenders in de gewenste volgorde en de televisie leest het bestand weer in.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>De eerste versie.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Elke stap ongedaan maken, na een crash niet-opgeslagen wijzigingen terughalen, eerdere versies van een bestand terugzetten</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>Lijsten in scripts bewerken en in Git bijhouden met het hulpmiddel quillet-cli</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Pagina %1 van %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n rij op het klembord noemt geen zender.</numerusform>
            <numerusform>%n rijen op het klembord noemen geen zender.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>De toegangsrechten van het bestand konden niet worden behouden: %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Kolommen voor:</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>Algemeen</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>JSON-lijsten</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Bewaren, om ze na een crash terug te halen</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>Als dit uit staat, gaan niet-opgeslagen wijzigingen bij een crash verloren. Wat al bewaard is, blijft tot de lijst wordt opgeslagen of gesloten.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Bewaren wat bij het opslaan wordt vervangen</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Programmataal:</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Geldt vanaf de volgende keer dat Quillet start.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>Die van het systeem</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Vragen</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Alleen als er niets verloren gaat. Quillet vraagt het altijd voordat wijzigingen, zenders of wat anderen in een bestand schreven, verloren gaan.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>JSON-lijsten zonder vragen hersteld opslaan</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Opslaan</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Map tonen</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Tabel</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Tekstgrootte:</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Instellingen</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Niet-opgeslagen wijzigingen</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>Per bestand, naast de eerste:</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Eerdere versies</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>De eerste versie van elk bestand blijft altijd. Boven de grenzen verdwijnen de oudste bij de volgende keer opslaan. Uitschakelen verwijdert niets. Ook quillet‑cli houdt zich hieraan.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Ruimte voor alle samen:</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>In gebruik: %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>XML-lijsten</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>Het voorbeeld is intussen veranderd; dit is het nieuwe.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n nummer zou meermaals worden gegeven.</numerusform>
            <numerusform>%n nummers zouden meermaals worden gegeven.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n nummer is in de tabel meermaals gegeven.</numerusform>
            <numerusform>%n nummers zijn in de tabel meermaals gegeven.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n nummer is daar meermaals gegeven.</numerusform>
            <numerusform>%n nummers zijn daar meermaals gegeven.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Daarbij is %n aangevinkte rij die niet wordt getoond.</numerusform>
            <numerusform>Daarbij zijn %n aangevinkte rijen die niet worden getoond.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kinderslot verandert</numerusform>
            <numerusform>%n kindersloten veranderen</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender krijgt een ander nummer of een andere plaats</numerusform>
            <numerusform>%n zenders krijgen een ander nummer of een andere plaats</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>De twee lijsten hebben geen enkele zender gemeen.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>Er zou niets veranderen.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Voorbeeld…</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Gevonden zenders: %1. Gaan naar het einde: %2. Regels zonder passende zender: %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n aangevinkte zender gaat naar nummer %1, waar nu “%2” staat.</numerusform>
            <numerusform>%n aangevinkte zenders gaan naar nummer %1, waar nu “%2” staat.</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>Er kan niets worden verplaatst: geen rij past bij een zender van de getoonde lijst.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>Geen rij is aangevinkt: vink de zenders aan die moeten worden verplaatst.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender krijgt een andere naam</numerusform>
            <numerusform>%n zenders krijgen een andere naam</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Alleen de selectie: %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n overslaanmarkering verandert</numerusform>
            <numerusform>%n overslaanmarkeringen veranderen</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>De lijst komt in de volgorde van haar nummers.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender waarvan het nummer wordt ingenomen, gaat naar het einde: %1.</numerusform>
            <numerusform>%n zenders waarvan de nummers worden ingenomen, gaan naar het einde: %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n rij past bij geen zender.</numerusform>
            <numerusform>%n rijen passen bij geen zender.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n rij die onzeker of uit een andere lijst is, is niet aangevinkt.</numerusform>
            <numerusform>%n rijen die onzeker of uit een andere lijst zijn, zijn niet aangevinkt.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>alleen %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Radiozenders, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>“%1”</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>Tv-zenders, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>“%1” kon niet worden afgedrukt.</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>De printer of het bestand kon niet worden geopend of heeft niet alle pagina’s aangenomen.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>Afdrukken naar een bestand</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>De lijst kon niet naar “%1” worden afgedrukt.</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Terugzetten</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>De versie kon niet worden teruggezet.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>De zenders zijn niet één voor één dezelfde als nu in de lijst; ze kan alleen worden geopend.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>De lijst is nu zoals ze toen was.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>Terugzetten is één stap, die ongedaan kan worden gemaakt; er wordt niets opgeslagen.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>uw deel van de schijf is vol</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radio</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>Het nieuwe bestand kon niet worden gecontroleerd. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>de schijf is tegen schrijven beveiligd</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 bestaat niet meer.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Recente lijsten</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Wijzigingen</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>Wat er van de wijzigingen is bewaard, is beschadigd.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>Niet alles kon worden teruggehaald.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Map</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Naam</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>De wijzigingen zijn bewaard door een nieuwere versie van het programma.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>Dit is een oudere toestand van een lijst die zojuist is teruggehaald. Ze blijft bewaard: verwerp ze, of haal ze terug zodra de andere is gesloten.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>De lijst is geopend in een venster en daar gewijzigd. Sla die wijzigingen eerst op of verwerp ze.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>De lijst van vóór de wijzigingen staat in %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>Het programma werd beëindigd voordat deze wijzigingen waren opgeslagen. Ze zijn bewaard en kunnen worden teruggehaald.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Laatste wijziging</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Niet-opgeslagen lijsten</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>Onleesbaar</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Opnieuw laden</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>Wilt u “%1” opnieuw van de schijf lezen?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>De wijzigingen die u niet hebt opgeslagen, gaan verloren.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Uit de lijst verwijderen</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>Deze bevat niet-opgeslagen wijzigingen in lijsten die niet worden getoond. Als u het gesleepte bestand hier opent, gaan die verloren.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>Het nieuwe bestand kon het oude niet vervangen: %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>Zenderlijst “%1” vervangen?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>“%1” kon niet opnieuw worden gelezen. De lijst in dit venster blijft zoals ze is.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>Wilt u teruggaan naar de laatst opgeslagen versie van “%1”?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>Alle wijzigingen die u sindsdien hebt aangebracht, gaan verloren.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Alle lijsten van dit soort (JSON) hersteld opslaan, zonder te vragen</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender zou een deel van zijn gegevens verliezen: %1</numerusform>
            <numerusform>%n zenders zouden een deel van hun gegevens verliezen: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender zou er dubbel in staan: %1</numerusform>
            <numerusform>%n zenders zouden er dubbel in staan: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>De letters met accenten zouden als UTF-8 worden geschreven, wat niet de codering is die het bestand opgeeft.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>Exporteren kan alleen in deze vorm. Uw eigen bestand blijft zoals het is.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Opmerkingen of extra gegevens tussen de zenders zouden verloren gaan.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>Er wordt gecontroleerd of bij het opslaan van “%1” niets verloren gaat…</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>Bij het opslaan van “%1” zou iets verloren gaan.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender zou ontbreken: %1</numerusform>
            <numerusform>%n zenders zouden ontbreken: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>Dit bestand kan niet met minder verlies worden geschreven. Bewaar een kopie van het oude bestand voordat u opslaat.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n getal of herhaalde waarde van de JSON-lijst zou anders worden geschreven of verloren gaan.</numerusform>
            <numerusform>%n getallen of herhaalde waarden van de JSON-lijst zouden anders worden geschreven of verloren gaan.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>Het opgeslagen bestand zou niet meer te openen zijn.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender zou een ander nummer krijgen: %1</numerusform>
            <numerusform>%n zenders zouden een ander nummer krijgen: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>Met “Herstelde versie opslaan” gaat niets verloren: uw wijzigingen worden geschreven en al het andere blijft zoals het is gelezen.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>“Herstelde versie opslaan” schrijft uw wijzigingen en laat al het andere zoals het is gelezen, maar ook dan:</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>Wat het televisietoestel vóór of na de zenders bewaart, zou verloren gaan.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Alles na een beschadigde plek in het bestand zou verloren gaan.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender na een beschadigde plek in het bestand is nooit gelezen en zou verloren gaan.</numerusform>
            <numerusform>%n zenders na een beschadigde plek in het bestand zijn nooit gelezen en zouden verloren gaan.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>gevonden op naam</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>staat er meermaals</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>daar in een andere lijst</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>andere gegevens</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>past bij geen zender</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>daar niet vergrendeld</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>daar vergrendeld</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>onzeker: naam lijkt erop</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>ander nummer</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>alleen hier</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>alleen daar</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>andere naam</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>daar niet overgeslagen</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>daar overgeslagen</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>gaat naar het einde</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>onzeker</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Voorbeeldlijst</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Satelliet</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Opslaan</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Toch opslaan</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Opslaan als…</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Zenderlijst opslaan als</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>Wilt u de wijzigingen in “%1” opslaan?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Uw wijzigingen gaan verloren als u ze niet opslaat.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Kopie opslaan…</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Kopie opslaan</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>“%1” kon niet worden opgeslagen. Het bestand op de schijf is niet gewijzigd.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>“%1” is er niet meer. Wilt u de lijst op een andere plek opslaan?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>Het bestand is verplaatst, hernoemd of verwijderd. Als het verwijderd is, bestaat de lijst alleen nog in dit venster.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Toch hier opslaan</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Herstelde versie opslaan</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Zenderlijst opslaan</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Opslaan zonder deze versie te bewaren</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Opslaan zonder %n zender</numerusform>
            <numerusform>Opslaan zonder %n zenders</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Zendernaam</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>&amp;Zoeken:</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Komma</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Puntkomma</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Tab</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Gevonden zenders: %1
Niet gevonden zenders: %2
Deze gaan verder vanaf nummer: %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>De volgorde van “%1” is toegepast.</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Ontvangstbron</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Stap voor stap: van de televisie en terug</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>Zo komt u eraan: steek een USB-stick in de televisie en zoek in de instellingen, bij die voor de zenders, naar een onderdeel dat de zenderlijst naar USB kopieert of exporteert. Steek de stick daarna in deze computer, maak een kopie van het bestand en open die.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>Wat is een TLL-bestand?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>Dat is de zenderlijst van een televisie: de zenders en hun nummers. De televisie schrijft de lijst naar een USB-stick, hier zet u die op volgorde en daarna leest de televisie de lijst weer in.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>zender</numerusform>
            <numerusform>zenders</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Zenders</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Rangschikken van %n zender</numerusform>
            <numerusform>Rangschikken van %n zenders</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Vullen van gaten</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>Importeren van “%1”</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Vergrendelen van %n zender</numerusform>
            <numerusform>Vergrendelen van %n zenders</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Verplaatsen van %n zender</numerusform>
            <numerusform>Verplaatsen van %n zenders</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>Volgorde van %1</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>Versie van %1</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Hernoemen naar “%1”</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Overslaan van %n zender</numerusform>
            <numerusform>Overslaan van %n zenders</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Wisselen van nummers</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>Overnemen uit “%1”</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ontgrendelen van %n zender</numerusform>
            <numerusform>Ontgrendelen van %n zenders</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Niet meer overslaan van %n zender</numerusform>
            <numerusform>Niet meer overslaan van %n zenders</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Kinderslot</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Namen</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Nummers en volgorde</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Overnemen:</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Alles overnemen</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Selectie overnemen</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Overslaan</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>De geselecteerde zenders staan al aan het einde</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>De geselecteerde zenders staan al aan het begin</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>Deze kolom wordt altijd getoond</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>Het bestand vermeldt dit van geen enkele zender in deze lijst</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>De kolommen zijn al de gebruikelijke</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>Aan deze kolom worden de zenders bij het importeren herkend, in welke volgorde en met welke nummers ook</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>Typen kunnen alleen voor tv-zenders worden gekozen</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>De getoonde zenders komen van een andere ontvangstbron; wis eerst de zoekopdracht en het type</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>Er is geen bestand op de schijf om opnieuw te lezen</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>Het bestand vermeldt geen versleutelde zender</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>Er is geen rij geselecteerd.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Open een lijst of kies een ontvangstbron die zenders bevat</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Open een bestand met zenders van deze ontvangstbron</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>Er is geen verdere stap in deze richting</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>Op het klembord staan geen rijen die zenders noemen</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>De lijst is niet uit een bestand gelezen</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>Het bestand vermeldt dit niet van deze zenders</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>Bij elke keer opslaan wordt de vervangen versie van het bestand bewaard; van deze lijst is er nog geen</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>Deze pagina heeft al de standaardwaarden</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>Namen kunnen alleen in de analoge lijst worden gewijzigd</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Typ eerst iets in het zoekveld</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Selecteer eerst zenders in de lijst</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Selecteer eerst precies twee zenders</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>Van de geselecteerde rijen kan niets worden overgenomen.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>Geen van de geselecteerde rijen is aangevinkt.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>Er zijn niet genoeg zenders om te rangschikken</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>Het bewaren van eerdere versies staat uit in de instellingen</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>In het hele bestand: tv en radio, van alle ontvangstbronnen</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender staat nu op een andere plaats</numerusform>
            <numerusform>%n zenders staan nu op een andere plaats</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>De wijzigingen in “%1” zijn terug, maar nog niet opgeslagen</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Gaten gevuld: %n nummer gewijzigd</numerusform>
            <numerusform>Gaten gevuld: %n nummers gewijzigd</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>Geëxporteerd naar %1, als volledige zenderlijst.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>Geëxporteerd naar %1.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>Niets gewijzigd: de rijen zijn nog die van “%1”, terwijl “%2” is gekozen</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender gewijzigd volgens “%1”</numerusform>
            <numerusform>%n zenders gewijzigd volgens “%1”</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender vergrendeld</numerusform>
            <numerusform>%n zenders vergrendeld</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender verplaatst naar %1</numerusform>
            <numerusform>%n zenders verplaatst naar %1</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender omlaag verplaatst</numerusform>
            <numerusform>%n zenders omlaag verplaatst</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender naar het einde verplaatst</numerusform>
            <numerusform>%n zenders naar het einde verplaatst</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender naar het begin verplaatst</numerusform>
            <numerusform>%n zenders naar het begin verplaatst</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender omhoog verplaatst</numerusform>
            <numerusform>%n zenders omhoog verplaatst</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>Niets geschreven: er staat nog een vraag over deze lijst open</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>Geen enkele zender in de lijst heeft “%1” in de naam</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>“%1” is opgeslagen, maar het bestand verloor: %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>De wijzigingen in “%1” zouden bij een crash verloren gaan, want ze kunnen niet apart worden bewaard: %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>Niets verplaatst: het nummer moet tussen 1 en %1 liggen</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>Niets overgenomen: de lijst is intussen veranderd</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>Volgorde van “%1” toegepast</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Alleen “%1” is genomen: dit venster bevat één lijst. Er is nog %n bestand hierheen gesleept</numerusform>
            <numerusform>Alleen “%1” is genomen: dit venster bevat één lijst. Er zijn nog %n bestanden hierheen gesleept</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ander nummer gewijzigd</numerusform>
            <numerusform>%n andere nummers gewijzigd</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n andere naar het einde verplaatst</numerusform>
            <numerusform>%n andere naar het einde verplaatst</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>Niets verplaatst: de zenders, of de rij waar ze moesten komen, staan niet meer in de getoonde lijst</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>Niets verplaatst: de zenders staan daar al</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>Afgedrukt naar %1.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>Versie van %1 teruggezet</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Opnieuw uitgevoerd: %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>“%1” is opnieuw van de schijf gelezen</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Zender hernoemd naar “%1”</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Herstelde versie opgeslagen, zoals u hebt gekozen: er is niets verloren gegaan.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>“%1” is weer zoals laatst opgeslagen</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>Deze lijst is verzonnen om dingen uit te proberen. Geen van uw bestanden wordt gewijzigd.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>Opgeslagen in %1.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender wordt overgeslagen</numerusform>
            <numerusform>%n zenders worden overgeslagen</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>De zenders %1 en %2 hebben van nummer gewisseld</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender overgenomen uit “%1”</numerusform>
            <numerusform>%n zenders overgenomen uit “%1”</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>“%1” is op de schijf niet gewijzigd</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Ongedaan gemaakt: %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender ontgrendeld</numerusform>
            <numerusform>%n zenders ontgrendeld</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zender wordt niet meer overgeslagen</numerusform>
            <numerusform>%n zenders worden niet meer overgeslagen</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Naar een andere stap van de geschiedenis gegaan</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>het bestand is groter dan daar is toegestaan</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>er zijn te veel bestanden geopend</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Voorbeeld proberen</translation>
    </message>
    <message id="kTV">
        <source></source>
        <translation>&amp;Tv</translation>
    </message>
    <message id="kTypeFilter">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="kUndoLink">
        <source></source>
        <translation>Ongedaan maken</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>De versie van “%1” die zou worden vervangen, kon niet worden bewaard.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>Bij het opslaan wordt ze voorgoed vervangen: ze zal niet bij de eerdere versies staan, die in “%1” worden bewaard.</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>Wat nu op de plaats van “%1” staat, kan niet worden gelezen.</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>Het is niet te zeggen of een ander programma het bestand heeft gewijzigd. Als u nu opslaat, gaat verloren wat daar staat.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>“%1” is geschreven, maar de schijf bevestigt niet dat het veilig is opgeslagen.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>De lijst blijft als gewijzigd gemarkeerd. Sla haar nogmaals op, of sla een kopie op een andere schijf op.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Naamloos</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>het systeem noemt geen reden</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>Het beschadigde bestand blijft zoals het is. Kies een andere naam of een andere map.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Gebruikelijke kolommen</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Vergelijken…</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Beschadigd of verdwenen; ze kan niet meer worden gelezen</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>Deze versie is beschadigd: ze is niet meer wat er werd bewaard.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>Vergeleken met nu</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (de eerste)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>Er kan geen zenderlijst uit worden gelezen</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Openen</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Wordt vergeleken…</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>Wat “%1” bevatte voordat het werd overschreven:</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Grootte</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Een ander programma bewaart al te lang een versie in “%1”.</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>Alle zenders</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Eerdere versies</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>Wat in “%1” al van dit bestand wordt bewaard, kan op dit moment niet worden gelezen.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Laatst gewijzigd</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Onbekend</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>De schijf heeft niet het hele bestand opgenomen: %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>“%1” is tegen schrijven beveiligd.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>resultaat</numerusform>
            <numerusform>resultaten</numerusform>
        </translation>
    </message>
</context>
</TS>
