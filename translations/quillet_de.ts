<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Ungültiges Dateiformat</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Quillet-Hilfe</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>Erstellt mit %1.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Copyright 2026 Die Autoren von Quillet. Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>Sortiert die Senderlisten von LG-Fernsehgeräten.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>Über Quillet</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Version %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analog</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 und %n weiterer</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Antenne</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>Reihen&amp;folge übernehmen …</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Diese Liste in die Reihenfolge einer anderen bringen</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Referenzliste wählen</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordnet den %n angezeigten Sender innerhalb der Nummern an, die er jetzt hat.</numerusform>
            <numerusform>Ordnet alle %n angezeigten Sender innerhalb der Nummern an, die sie jetzt haben.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Verschlüsselung</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Frequenz</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Netzwerk</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Nummer</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Satellit</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>Dienst-ID</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Typ (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Richtung</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Absteigend</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Verschlüsselte zuerst</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Anordnen nach:</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>Freie zuerst</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>Alle diese Sender stehen bereits in dieser Reihenfolge.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Nichts weiter</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Anordnen</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender würde den Platz wechseln.</numerusform>
            <numerusform>%n Sender würden den Platz wechseln.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordnet den %n ausgewählten Sender innerhalb der Nummern an, die er jetzt hat.</numerusform>
            <numerusform>Ordnet die %n ausgewählten Sender innerhalb der Nummern an, die sie jetzt haben.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>&amp;Dann nach:</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>Da&amp;nn nach:</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Sender innerhalb der Nummern sortieren, die sie haben</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Sender anordnen</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Aufsteigend</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>Dateien dieses Typs können nicht verwendet werden</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>Der Abschnitt %1 enthält keine Senderliste.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Der erste Sender des Abschnitts %1 steht %n Zeichen hinter dem Anfang des Abschnitts; erlaubt sind höchstens %2.</numerusform>
            <numerusform>Der erste Sender des Abschnitts %1 steht %n Zeichen hinter dem Anfang des Abschnitts; erlaubt sind höchstens %2.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Nummern trotzdem ändern</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender bekäme eine Nummer, die eine Senderliste nicht fasst.</numerusform>
            <numerusform>%n Sender bekämen Nummern, die eine Senderliste nicht fasst.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>Die höchste Nummer ist %1. Ein Sender darüber hätte danach eine niedrige Nummer wie 0 und wäre womöglich als Radiosender gekennzeichnet.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Zurückholen</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Kabel</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>Wenn Sie jetzt speichern, gehen die Änderungen des anderen Programms verloren.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Anderen Ort wählen …</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Suche und Typ zurücksetzen</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Liste leeren</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Suche leeren</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Zwischenablage</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Schließen, ohne zu speichern</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Sperre</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Verschlüsselt</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Frequenz</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Verborgen</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Netz</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>Netzwerk-ID</translation>
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
        <translation>Satellit</translation>
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
        <translation>Überspringen</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Strom</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>Transportstrom-ID</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Typ</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>Alle Listen</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Anwenden</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>In der Zwischenablage</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Unterschied</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>Es gibt keinen Unterschied.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>„%1“ enthält keine Liste zum Vergleichen.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>Der Datenträger hat nicht gespeichert, was geschrieben wurde. Er ist möglicherweise voll oder beschädigt.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Andere Angaben</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Vergleichen mit</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>Passt zu keinem Sender</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Überspringen, Sperre</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>Liste</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Verschieben</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Andere Nummer</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (wie gelesen)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Name dort</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1 vom %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (Stand %2)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>Kein Sender ist von einer oben angekreuzten Art und passt zur Suche.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>Darin unterscheidet sich nichts</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>Neue Nr.</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>Nr. dort</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Nur hier</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Nur dort</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Einfügen</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Anderer Name</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Gleich</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Verglichene Sender</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Übernehmen</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>Vergleich mit „%1“</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>Änderungen aus „%1“</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>Reihenfolge von „%1“</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Einzufügende Sender</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Kommt ans Ende</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Unsicher</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>Die Datei ist leer oder keine Senderliste.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>Wenn Sie eine Kopie speichern, arbeitet dieses Fenster mit der Kopie weiter: „Speichern“ schreibt dann in sie.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>Im Ordner „%1“ konnte keine neue Datei angelegt werden: %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>Senderlisten von LG-Fernsehgeräten sortieren</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Senderlisten-Editor</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, Sender, Programm, Fernseher, Fernsehen, TV, Radio, Satellit, Kabel, sortieren</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Fernseher:</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender weniger</numerusform>
            <numerusform>%n Sender weniger</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender mit anderen Angaben</numerusform>
            <numerusform>%n Sender mit anderen Angaben</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender, der seither fehlt</numerusform>
            <numerusform>%n Sender, die seither fehlen</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender mit anderer Kindersicherung</numerusform>
            <numerusform>%n Sender mit anderer Kindersicherung</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender mehr</numerusform>
            <numerusform>%n Sender mehr</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender mit anderem Namen</numerusform>
            <numerusform>%n Sender mit anderen Namen</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>ohne %n, der neu ist</numerusform>
            <numerusform>ohne %n, die neu sind</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender unter anderer Nummer</numerusform>
            <numerusform>%n Sender unter anderen Nummern</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>Dieselben Sender in anderer Reihenfolge</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>Dieselben Sender in derselben Reihenfolge</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender mit anderer Markierung „Überspringen“</numerusform>
            <numerusform>%n Sender mit anderer Markierung „Überspringen“</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>Verwerfen</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>Nicht alles konnte verworfen werden. Ein anderes Programm benutzt diese Ordner, oder dort darf nichts gelöscht werden:</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>Möchten Sie die ungespeicherten Änderungen an „%1“ verwerfen?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Möchten Sie die ungespeicherten Änderungen an %n Liste verwerfen?</numerusform>
            <numerusform>Möchten Sie die ungespeicherten Änderungen an %n Listen verwerfen?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>Danach können sie nicht mehr zurückgeholt werden.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>Möchten Sie ungespeicherte Änderungen verwerfen, die nicht lesbar sind?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>Der Datenträger meldet einen Fehler; er ist möglicherweise beschädigt</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>Auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>Der Datenträger wurde entfernt</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>UTF-8 mit Kennung (für Tabellenkalkulationen)</translation>
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
        <translation>Windows-1252 (Westeuropa)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Der eine Sender dieser Liste</numerusform>
            <numerusform>Alle %n Sender dieser Liste</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender hat keine vollständigen Kennungen und wird nur an seinem Namen wiedererkannt.</numerusform>
            <numerusform>%n Sender haben keine vollständigen Kennungen und werden nur an ihren Namen wiedererkannt.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>In %n Namen stehen Kommas und Leerzeichen für Semikolons und Zeilenumbrüche; an diesem Namen wird der Sender nicht wiedererkannt.</numerusform>
            <numerusform>In %n Namen stehen Kommas und Leerzeichen für Semikolons und Zeilenumbrüche; an diesen Namen werden die Sender nicht wiedererkannt.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>Geschrieben wird eine Kopie der ganzen Senderliste unter dem Namen, den Sie wählen. Die Datei dieses Fensters bleibt, wie sie ist. Die Reihenfolge der Kopie lässt sich auf andere Listen anwenden, wenn ihr Name auf „.tll“ endet.</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>Die Liste konnte nicht als „%1“ exportiert werden.</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Format:</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>&amp;Mit Senderschlüsseln, um Änderungen zu importieren</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Liste exportieren</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zeichen gibt es in dieser Kodierung nicht; dafür steht „?“.</numerusform>
            <numerusform>%n Zeichen gibt es in dieser Kodierung nicht; dafür steht „?“.</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender hat Zahlen als Kennungen: Listen mit Kennungen als Text erkennen ihn daran wieder, diese Liste nur an seinem Namen.</numerusform>
            <numerusform>%n Sender haben Zahlen als Kennungen: Listen mit Kennungen als Text erkennen sie daran wieder, diese Liste nur an ihren Namen.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Exportieren …</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Seite zum Drucken (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Referenzliste für „Reihenfolge übernehmen“ (Text)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n umbenannter Sender hat keine vollständigen Kennungen: Er wird erst wiedererkannt, wenn die Liste gespeichert und neu geöffnet ist.</numerusform>
            <numerusform>%n umbenannte Sender haben keine vollständigen Kennungen: Sie werden erst wiedererkannt, wenn die Liste gespeichert und neu geöffnet ist.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>&amp;Trennzeichen:</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Nur der eine angezeigte</numerusform>
            <numerusform>Nur die %n angezeigten</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Sender:</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Tabelle für Tabellenkalkulationen (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Als Referenzliste exportieren (Kopie der ganzen Datei)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>Eine Reihenfolge wird nur aus mindestens drei Sendern gelesen: Diese Datei ließe sich nicht anwenden.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>„%1“ sagt nicht, ob der Sender so markiert ist; gemeint ist etwa 1 oder 0.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>„%1“ ist keine Nummer von 1 bis 16383.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Zeile %1, Spalte %2 „%3“:</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>Die Spalte „%1“ gibt es zweimal.</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>Die erste Zeile muss die Titel der Spalten nennen, darunter „Name“, „Dienst“ oder „stationKey“, wie sie exportiert wurden.</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>Es gibt keine Zeilen mit Sendern.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Zeile %1, Zeichen %2:</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>Hinter einem schließenden Anführungszeichen steht noch Text.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>Die Tabelle ist zu groß.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>„%1“ steht in keiner Spalte mit Titel.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>Hier beginnt ein Anführungszeichen, das nirgends endet.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>Dies ist keine Textdatei.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>Unter „%1“ gibt es keine Datei.</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>Datei</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>Die Datei ist für eine Senderliste viel zu groß.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>Die Datei konnte nicht gelesen werden: %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>&amp;Lücken füllen</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>Die Liste lückenlos mit 1, 2, 3 … nummerieren, jetzt und nach jedem Verschieben</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>Alle Typen</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>Alle Dateien</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Senderlisten</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Sonstige</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>HTML-Seiten</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Referenzlisten</translation>
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
        <translation>Textdateien</translation>
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
        <translation>Der Ordner „%1“ ist nicht mehr da.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>Er wurde verschoben oder gelöscht, oder sein Datenträger wurde entfernt. Es wurde nichts gespeichert, und nichts ist verloren: Die Liste ist mit allen Änderungen noch in diesem Fenster.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>An dieser Stelle ist ein Ordner</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>Es konnte kein Programm gestartet werden, das den Ordner „%1“ zeigt.</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>Diese Sender gehören zu „%1“. Setzen Sie Suche und Typ zurück, um „%2“ zu sehen.</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>Die Datei wurde verschoben oder gelöscht, oder der Datenträger, auf dem sie lag, wurde entfernt. Wenn Sie hier speichern, entsteht an dieser Stelle eine neue Datei; soll sie auf einen Stick, stecken Sie ihn zuerst ein.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Suchen</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Suchleiste schließen</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Treffer %1 von %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Nächster Treffer</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>Auf dieser Seite nicht gefunden</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Vorheriger Treffer</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Ein Wort auf dieser Seite suchen</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>Vorwärts</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Startseite</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>In Chrome öffnen</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Navigation</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>Keine Senderliste geöffnet</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Ziehen Sie eine TLL-Datei Ihres Fernsehers in dieses Fenster oder wählen Sie eine aus.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>Bei dieser Empfangsart gibt es keine Radiosender</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>Keine Sender</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>Diese Datei enthält keine Sender. Sie können eine andere TLL-Datei hierher ziehen.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>Bei dieser Empfangsart gibt es keine TV-Sender</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Datei öffnen …</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Radiosender dieser Art von Liste werden nicht angezeigt</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Was sie davon enthält, bleibt in der Datei.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>Radiosender dieser Empfangsart anzeigen</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>TV-Sender dieser Empfangsart anzeigen</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Aktuell</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Ältester aufbewahrter Schritt</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (gespeichert)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>Liste wie geöffnet</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>Verlauf</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Rückgängig gemacht</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>Die Tabelle hat keine Spalte „stationKey“: Manche Sender werden nur am Namen wiedererkannt.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Nummern und Reihenfolge der Zeilen sind geändert und passen nicht zusammen: Es gelten die Nummern.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>Die Nummern sind unverändert, aber die Zeilen stehen in anderer Reihenfolge: Die Sender bekommen die Reihenfolge der Zeilen.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>„%1“ kann nicht importiert werden. Die Liste bleibt, wie sie ist.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>Die Zeilen passen zu einer anderen Liste dieser Datei: %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>Die Tabelle nennt keine Nummern: Die Sender bekommen die Reihenfolge der Zeilen.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Änderungen aus einer Tabelle importieren</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zeile ist nicht eindeutig: Ihr Schlüssel und ihr Name passen nicht zusammen, oder der Sender steht noch einmal da.</numerusform>
            <numerusform>%n Zeilen sind nicht eindeutig: Schlüssel und Name passen nicht zusammen, oder ein Sender steht mehrmals da.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Nicht gelesene Spalten: %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zeile der Tabelle nennt keinen Sender.</numerusform>
            <numerusform>%n Zeilen der Tabelle nennen keinen Sender.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Info …</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>Inhalt</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Feld</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Felder des Senders</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Alle Felder des ausgewählten Senders anzeigen</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>Ein anderes Programm benutzt sie gerade</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>„%1“ ist ein Ordner.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Meine behalten</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>Deutsch</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Später</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>Die Verknüpfung zu der Datei führt zu sich selbst zurück.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>Die Senderliste konnte nicht geöffnet werden.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Hier kann nichts übernommen werden</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1: nicht angekreuzt</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1: angekreuzt</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n einzelnes „&amp;“ wurde berichtigt.</numerusform>
            <numerusform>%n einzelne „&amp;“ wurden berichtigt.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n einzelnes „&lt;“ wurde berichtigt.</numerusform>
            <numerusform>%n einzelne „&lt;“ wurden berichtigt.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Steuerzeichen wurde entfernt.</numerusform>
            <numerusform>%n Steuerzeichen wurden entfernt.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>Der letzte Sender war abgeschnitten; was von ihm vollständig ist, wurde behalten.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>Der letzte Sender war abgeschnitten und musste weggelassen werden.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>Das Ende der Datei fehlte und wurde ergänzt.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Textstück außerhalb der Liste wurde entfernt.</numerusform>
            <numerusform>%n Textstücke außerhalb der Liste wurden entfernt.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fehlendes oder falsches Tag wurde berichtigt.</numerusform>
            <numerusform>%n fehlende oder falsche Tags wurden berichtigt.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>Dies ist eine reparierte Kopie von „%1“. Die Datei selbst bleibt unverändert.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>Ü&amp;ber Quillet</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>&amp;JSON-Listen repariert speichern</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;log</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Antenne</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>Reihen&amp;folge übernehmen …</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>A&amp;nordnen …</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Kabel</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>S&amp;chließen</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>S&amp;palten</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Ve&amp;rgleichen mit</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>Anderer &amp;Liste …</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>Datei, wie sie &amp;gelesen wurde</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>Ko&amp;pieren</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>Als Referenzliste &amp;exportieren …</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>Expor&amp;tieren …</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;Datei</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>&amp;Lücken füllen</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>Alle T&amp;ypen</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>S&amp;onstige</translation>
    </message>
    <message id="kMenuFilterSD">
        <source></source>
        <translation>S&amp;D</translation>
    </message>
    <message id="kMenuFilterTV">
        <source></source>
        <translation>Nur T&amp;V</translation>
    </message>
    <message id="kMenuFilterUHD">
        <source></source>
        <translation>&amp;UHD</translation>
    </message>
    <message id="kMenuFind">
        <source></source>
        <translation>&amp;Suchen</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>&amp;Nächsten suchen</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>&amp;Vorherigen suchen</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Suchen …</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>Quillet-&amp;Hilfe</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>V&amp;erlauf</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>Änderungen &amp;importieren …</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>Sen&amp;derinfo</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>&amp;Kindersicherung</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>Nach &amp;unten verschieben</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>&amp;Verschieben …</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>Ans &amp;Ende verschieben</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>An den &amp;Anfang verschieben</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>Nach &amp;oben verschieben</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;Neu</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>&amp;Zuletzt geöffnete Dateien</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>Einfü&amp;gen</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>E&amp;instellungen …</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>&amp;Kompakt drucken …</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>&amp;Radiosender</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>Wieder&amp;herstellungsordner öffnen</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>%1 &amp;wiederholen</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>Änderungen ver&amp;werfen</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>B&amp;eispiel ausprobieren</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>&amp;Satellit</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>&amp;Speichern</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>Auswä&amp;hlen</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;Alle</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>&amp;Verschlüsselte</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>&amp;Keine</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>Gleicher &amp;Typ</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>Ü&amp;berspringen</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>Nummern &amp;tauschen</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>&amp;Größer</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normal</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>Schrift&amp;größe</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>&amp;TV-Sender</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>%1 &amp;rückgängig machen</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>Un&amp;gespeicherte Listen …</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>Frühere &amp;Versionen …</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>LG-Senderliste</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>&amp;Verschieben …</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>Den ausgewählten Sendern neue Nummern geben</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ausgewählten Sender auf Nummer (1 bis 9999) verschieben:</numerusform>
            <numerusform>Ausgewählte Sender auf Nummer (1 bis 9999) verschieben:</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Verschieben</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>Es gibt schon eine Datei mit diesem Namen</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>Der Name ist zu lang</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>Der Datenträger oder das Netzwerk antwortet nicht</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>Kein Sender passt zur Suche und zum Typ.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>Der Arbeitsspeicher reicht für diese Liste nicht aus. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>Die Liste hat keine der gewählten Seiten.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>Ihnen fehlen die Zugriffsrechte dafür</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>Es können nur Dateien auf diesem Computer geöffnet werden.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Die Nummern reichen nicht: Sie enden bei %1, und %n Sender mit einer schon vergebenen Nummer konnte keine freie bekommen. Beim Speichern bliebe ihm eine niedrige Nummer als Radiosender.</numerusform>
            <numerusform>Die Nummern reichen nicht: Sie enden bei %1, und %n Sender mit schon vergebenen Nummern konnten keine freien bekommen. Beim Speichern blieben ihnen niedrige Nummern als Radiosender.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>Es wurden keine Sender gefunden, denn dies sieht nach einer binären Liste aus und nicht nach einer TLL-Textdatei.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>Die Datei ist in Zeile %1 beschädigt, hinter dem Sender „%2“.</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>Die Datei ist in Zeile %1 beschädigt, noch vor dem ersten vollständigen Sender.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>Die Datei ist in Zeile %1 beschädigt.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>Die Datei gibt die Kodierung %1 an, aber ihre Buchstaben sind UTF-8. Quillet lässt beides, wie es ist; ein Fernseher, der der Angabe glaubt, zeigt Buchstaben mit Akzent falsch an.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>„%1“ wurde von einem anderen Programm geändert. Mit „Meine behalten“ bleibt die Liste, wie sie hier ist, und das nächste Speichern ersetzt die Datei.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>„%1“ ist nicht mehr da: Die Datei wurde verschoben, umbenannt oder gelöscht, oder ihr Datenträger wurde entfernt. Die Liste ist noch in diesem Fenster; Sie können sie an einem anderen Ort speichern.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>„%1“ kann nicht mehr gelesen werden. %2 Die Liste ist noch in diesem Fenster; Sie können sie an einem anderen Ort speichern.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>Es wurden keine Sender gefunden, denn der JSON-Text, der sie enthält, konnte nicht dekodiert werden (Zeile %1, Spalte %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>Es wurden keine Sender gefunden, denn der JSON-Text, der sie enthält, ist nicht vollständig.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>Die Datei ist kein gültiges UTF-8 und wurde als Latin-1 dekodiert. Beim Speichern wird UTF-8 geschrieben, was in der ganzen Datei jeden Buchstaben mit Akzent oder Umlaut ändert.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>Ab Zeile %1 wurde die Datei nicht gelesen: Dort enthält sie mehr Felder, Attribute oder verschachtelte Elemente als jede Liste eines Fernsehers.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>Es wurden keine Sender gefunden, denn dies ist ein Text anderer Art und keine TLL-Datei.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>Diese Datei kann nicht geändert werden: Die Datei selbst, ihr Ordner oder ihr Datenträger ist schreibgeschützt. Um Ihre Änderungen zu behalten, speichern Sie eine Kopie; „Speichern“ bietet das an.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n folgender Sender (&lt;ITEM&gt;) wurde nicht gelesen und ginge verloren, wenn Sie diese Liste speichern.</numerusform>
            <numerusform>%n folgende Sender (&lt;ITEM&gt;) wurden nicht gelesen und gingen verloren, wenn Sie diese Liste speichern.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>Was folgt, wurde nicht gelesen.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>die Rechte einzelner Benutzer und Gruppen</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>ihre erweiterten Attribute</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>ihre Gruppe</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>ihre anderen Namen, die noch für die alte Liste stehen</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>ihren Besitzer</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>einige ihrer Zugriffsrechte</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>Der Datenträger lässt das oder diesen Namen nicht zu</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>Die Datei oder ihr Ordner ist nicht da</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Öffnen</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>Diese Datei ist in einem anderen Fenster geöffnet. Wählen Sie einen anderen Namen oder einen anderen Ordner.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>„%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Reparierte Kopie öffnen</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Senderliste öffnen</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>„%1“ enthält keine Reihenfolge, die übernommen werden kann.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>Sie ist eine vollständige Senderliste, etwa ein Export. Geben Sie ihr einen Namen mit der Endung .tll, um ihre Reihenfolge zu übernehmen.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>Sie ist eine Liste von der Art, die ihre Sender als JSON führt. Deren Kennungen sind Zahlen, an denen Sender anderer Listen nicht erkannt werden.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Zeilen dieser Form in dieser Datei: %1. Andere Zeilen: %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>Sender werden an Netzwerk-, Transportstrom- und Dienstkennung (original network id, transport stream id, service id) erkannt, und keiner ihrer Sender hat alle drei und einen Namen.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>Eine Textdatei muss mindestens drei Zeilen der Form „101;Sample TV;1-10-300“ haben und höchstens zwei andere.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>Sie enthält keine Radiosender.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>Sie enthält keine TV-Sender.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>Eine Reihenfolge kann aus TLL-Dateien und aus Textdateien (.txt) übernommen werden.</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>Das System meldet den Fehler %1</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>Der Arbeitsspeicher reicht nicht aus</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>Das ist die Datei der Liste selbst, die ein Export nie ersetzt. Wählen Sie einen anderen Namen oder einen anderen Ordner.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Heben Sie eine Kopie der ursprünglichen Datei auf, bevor Sie eine geänderte in Ihren Fernseher importieren.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Listen mit Tabellenprogrammen austauschen und drucken</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Sender auf eine Nummer verschieben: durch Ziehen, Eintippen oder per Taste, mit oder ohne Lücken</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>Die Reihenfolge eines alten Fernsehers auf einen neuen übertragen und zwei Listen Sender für Sender vergleichen</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Zwei Listen, Sender für Sender verglichen</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>Eine Senderliste in ihrem Fenster</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet sortiert die Senderliste eines LG-Fernsehers am Computer. Der Fernseher exportiert seine Sender als TLL-Datei auf einen USB-Stick; Sie bringen Hunderte von Sendern in die gewünschte Reihenfolge, und der Fernseher liest die Datei wieder ein.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>Die erste Version.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Jeden Schritt rückgängig machen, ungespeicherte Änderungen nach einem Absturz zurückholen, frühere Versionen einer Datei wiederherstellen</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>Listen in Skripten bearbeiten und in Git führen, mit dem Werkzeug quillet-cli</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zeile der Zwischenablage nennt keinen Sender.</numerusform>
            <numerusform>%n Zeilen der Zwischenablage nennen keinen Sender.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>Die Zugriffsrechte der Datei konnten nicht beibehalten werden: %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Spalten für:</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>Allgemein</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>JSON-Listen</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Aufbewahren, um sie nach einem Absturz zurückzuholen</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>Ist das ausgeschaltet, gehen ungespeicherte Änderungen bei einem Absturz verloren. Was schon aufbewahrt ist, bleibt, bis die Liste gespeichert oder geschlossen wird.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Aufbewahren, was beim Speichern ersetzt wird</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Sprache:</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Gilt ab dem nächsten Start von Quillet.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>Wie im System</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Rückfragen</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Das gilt nur, wo dabei nichts verloren geht. Bevor Änderungen, Sender oder eine von anderen geänderte Datei verloren gingen, fragt Quillet immer.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>JSON-Listen ohne Rückfrage repariert speichern</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Ordner anzeigen</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Tabelle</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Schriftgröße:</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Voreinstellungen</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>Je Datei, außer der ersten:</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Frühere Versionen</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>Die erste Version jeder Datei bleibt immer. Über den Grenzen gehen beim nächsten Speichern die ältesten. Wird das Aufbewahren ausgeschaltet, bleibt alles Vorhandene. quillet‑cli hält sich ebenfalls daran.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Platz für alle zusammen:</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>Belegt: %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>XML-Listen</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>Inzwischen hat sich die Vorschau geändert; hier ist die neue.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Nummer würde mehrmals vergeben.</numerusform>
            <numerusform>%n Nummern würden mehrmals vergeben.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Nummer ist in der Tabelle mehrmals vergeben.</numerusform>
            <numerusform>%n Nummern sind in der Tabelle mehrmals vergeben.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Nummer ist dort mehrmals vergeben.</numerusform>
            <numerusform>%n Nummern sind dort mehrmals vergeben.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Dabei ist %n angekreuzte Zeile, die nicht angezeigt wird.</numerusform>
            <numerusform>Dabei sind %n angekreuzte Zeilen, die nicht angezeigt werden.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kindersicherung ändert sich</numerusform>
            <numerusform>%n Kindersicherungen ändern sich</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender bekommt eine andere Nummer oder Stelle</numerusform>
            <numerusform>%n Sender bekommen eine andere Nummer oder Stelle</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>Die beiden Listen haben keinen Sender gemeinsam.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>Es würde sich nichts ändern.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Vorschau …</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Gefundene Sender: %1. Kommen ans Ende: %2. Einträge ohne passenden Sender: %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n angekreuzter Sender kommt auf die Nummer %1, wo jetzt „%2“ ist.</numerusform>
            <numerusform>%n angekreuzte Sender kommen auf die Nummer %1, wo jetzt „%2“ ist.</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>Es kann nichts verschoben werden: Keine Zeile passt zu einem Sender der angezeigten Liste.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>Keine Zeile ist angekreuzt: Kreuzen Sie die Sender an, die verschoben werden sollen.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender wird umbenannt</numerusform>
            <numerusform>%n Sender werden umbenannt</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Nur ausgewählte: %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Markierung „Überspringen“ ändert sich</numerusform>
            <numerusform>%n Markierungen „Überspringen“ ändern sich</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>Die Liste kommt in die Reihenfolge ihrer Nummern.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender, dessen Nummer vergeben wird, kommt ans Ende: %1.</numerusform>
            <numerusform>%n Sender, deren Nummern vergeben werden, kommen ans Ende: %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zeile passt zu keinem Sender.</numerusform>
            <numerusform>%n Zeilen passen zu keinem Sender.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zeile, die unsicher oder aus einer anderen Liste ist, ist nicht angekreuzt.</numerusform>
            <numerusform>%n Zeilen, die unsicher oder aus einer anderen Liste sind, sind nicht angekreuzt.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>nur %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Radiosender, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>„%1“</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>TV-Sender, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>„%1“ konnte nicht gedruckt werden.</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>Der Drucker oder die Datei konnte nicht geöffnet werden oder hat nicht alle Seiten angenommen.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>In eine Datei drucken</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>Die Liste konnte nicht nach „%1“ gedruckt werden.</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Zurückholen</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>Die Version konnte nicht zurückgeholt werden.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>Ihre Sender sind nicht Stück für Stück dieselben wie jetzt in der Liste; sie lässt sich nur öffnen.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>Die Liste ist jetzt so, wie sie damals war.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>Zurückholen ist ein Schritt, der sich rückgängig machen lässt; gespeichert wird dabei nichts.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>Ihr Anteil am Datenträger ist aufgebraucht</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radio</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>Die neue Datei konnte nicht überprüft werden. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>Der Datenträger ist schreibgeschützt</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 ist nicht mehr vorhanden.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Zuletzt verwendete Listen</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Änderungen</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>Was von den Änderungen aufbewahrt wurde, ist beschädigt.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>Nicht alles konnte zurückgeholt werden.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Ordner</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>Die Änderungen wurden von einer neueren Version des Programms aufbewahrt.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>Das ist ein älterer Stand einer Liste, die gerade zurückgeholt wurde. Er bleibt aufbewahrt: Verwerfen Sie ihn, oder holen Sie ihn zurück, wenn die andere geschlossen ist.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>Die Liste ist in einem Fenster geöffnet und dort geändert. Speichern oder verwerfen Sie erst diese Änderungen.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>Die Liste vor den Änderungen liegt unter %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>Das Programm wurde beendet, bevor diese Änderungen gespeichert waren. Sie sind noch da und können zurückgeholt werden.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Letzte Änderung</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Ungespeicherte Listen</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>Nicht lesbar</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Neu laden</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>Möchten Sie „%1“ neu vom Datenträger lesen?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>Ihre noch nicht gespeicherten Änderungen gehen verloren.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>Sie enthält nicht gespeicherte Änderungen in Listen, die gerade nicht angezeigt werden. Wenn Sie die abgelegte Datei hier öffnen, gehen diese Änderungen verloren.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>Die neue Datei konnte die alte nicht ersetzen: %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>Senderliste „%1“ ersetzen?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>„%1“ konnte nicht erneut gelesen werden. Die Liste in diesem Fenster bleibt, wie sie ist.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>Möchten Sie die zuletzt gespeicherte Version von „%1“ wiederherstellen?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>Alle seitdem vorgenommenen Änderungen gehen verloren.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Alle Listen dieser Art (JSON) ohne Rückfrage repariert speichern</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender verlöre einen Teil seiner Angaben: %1</numerusform>
            <numerusform>%n Sender verlören einen Teil ihrer Angaben: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender stünde doppelt darin: %1</numerusform>
            <numerusform>%n Sender stünden doppelt darin: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>Die Buchstaben mit Akzent würden als UTF-8 geschrieben, was nicht die Kodierung ist, die die Datei angibt.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>Ein Export hat nur diese eine Form. Ihre eigene Datei bleibt, wie sie ist.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Anmerkungen oder zusätzliche Angaben zwischen den Sendern gingen verloren.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>Es wird geprüft, ob beim Speichern von „%1“ nichts verloren geht …</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>Beim Speichern von „%1“ ginge etwas verloren.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender würde fehlen: %1</numerusform>
            <numerusform>%n Sender würden fehlen: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>Es gibt keinen Weg, diese Datei mit weniger Verlust zu schreiben. Bewahren Sie eine Kopie der alten Datei auf, bevor Sie speichern.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Zahl oder wiederholter Wert der JSON-Liste würde anders geschrieben oder ginge verloren.</numerusform>
            <numerusform>%n Zahlen oder wiederholte Werte der JSON-Liste würden anders geschrieben oder gingen verloren.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>Die gespeicherte Datei ließe sich nicht wieder öffnen.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender bekäme eine andere Nummer: %1</numerusform>
            <numerusform>%n Sender bekämen eine andere Nummer: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>Mit „Repariert speichern“ geht nichts verloren: Ihre Änderungen werden geschrieben, alles andere bleibt, wie es gelesen wurde.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>„Repariert speichern“ schreibt Ihre Änderungen und lässt alles andere, wie es gelesen wurde. Dennoch:</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>Was der Fernseher vor oder nach den Sendern ablegt, ginge verloren.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Was hinter einer beschädigten Stelle der Datei steht, wäre verloren.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender hinter einer beschädigten Stelle der Datei wurde nie gelesen und wäre verloren.</numerusform>
            <numerusform>%n Sender hinter einer beschädigten Stelle der Datei wurden nie gelesen und wären verloren.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>am Namen erkannt</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>steht mehrmals da</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>dort in einer anderen Liste</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>andere Angaben</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>passt zu keinem Sender</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>dort nicht gesperrt</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>dort gesperrt</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>unsicher: ähnlicher Name</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>andere Nummer</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>nur hier</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>nur dort</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>anderer Name</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>dort nicht übersprungen</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>dort übersprungen</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>kommt ans Ende</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>unsicher</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Beispielliste</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Satellit</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Trotzdem speichern</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Speichern unter …</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Senderliste speichern unter</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>Möchten Sie die Änderungen an „%1“ speichern?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Ihre Änderungen gehen verloren, wenn Sie sie nicht speichern.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Kopie speichern …</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Kopie speichern</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>„%1“ konnte nicht gespeichert werden. Die Datei auf dem Datenträger wurde nicht verändert.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>„%1“ ist nicht mehr da. Möchten Sie die Liste an einem anderen Ort speichern?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>Die Datei wurde verschoben, umbenannt oder gelöscht. Wurde sie gelöscht, gibt es die Liste nur noch in diesem Fenster.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Trotzdem hier speichern</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Repariert speichern</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Senderliste speichern</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Speichern, ohne sie aufzubewahren</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ohne %n Sender speichern</numerusform>
            <numerusform>Ohne %n Sender speichern</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Sendername</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>&amp;Suche:</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Komma</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Semikolon</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Tabulator</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Zugeordnete Sender: %1
Nicht zugeordnete Sender: %2
Diese folgen ab Nummer: %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>Die Reihenfolge von „%1“ wurde übernommen.</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Empfangsart</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Schritt für Schritt: vom Fernseher und zurück</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>So bekommen Sie eine: Stecken Sie einen USB-Stick in den Fernseher und suchen Sie in seinen Einstellungen bei den Sendern nach einem Eintrag, der die Senderliste auf USB kopiert oder exportiert. Stecken Sie den Stick dann in diesen Computer, machen Sie eine Kopie der Datei und öffnen Sie diese.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>Was ist eine TLL-Datei?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>Das ist die Senderliste eines Fernsehers: seine Sender und ihre Nummern. Der Fernseher schreibt sie auf einen USB-Stick, hier ordnen Sie sie, und dann liest der Fernseher sie wieder ein.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Sender</numerusform>
            <numerusform>Sender</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Sender</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Anordnen von %n Sender</numerusform>
            <numerusform>Anordnen von %n Sendern</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Füllen der Lücken</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>Import von „%1“</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Sperren von %n Sender</numerusform>
            <numerusform>Sperren von %n Sendern</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Verschieben von %n Sender</numerusform>
            <numerusform>Verschieben von %n Sendern</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>Reihenfolge von %1</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>Version vom %1</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Umbenennen in „%1“</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Überspringen von %n Sender</numerusform>
            <numerusform>Überspringen von %n Sendern</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Tauschen der Nummern</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>Übernehmen aus „%1“</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Entsperren von %n Sender</numerusform>
            <numerusform>Entsperren von %n Sendern</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Aufheben des Überspringens von %n Sender</numerusform>
            <numerusform>Aufheben des Überspringens von %n Sendern</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Kindersicherung</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Namen</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Nummern und Reihenfolge</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Übernehmen:</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Alle übernehmen</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Ausgewählte übernehmen</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Überspringen</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>Die ausgewählten Sender stehen schon am Ende</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>Die ausgewählten Sender stehen schon am Anfang</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>Diese Spalte wird immer angezeigt</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>Die Datei nennt dies bei keinem Sender dieser Liste</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>Die Spalten sind schon die üblichen</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>An dieser Spalte erkennt „Änderungen importieren“ die Sender wieder, auch in anderer Reihenfolge und mit anderen Nummern</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>Typen können nur für TV-Sender ausgewählt werden</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>Die angezeigten Sender gehören zu einer anderen Empfangsart; setzen Sie zuerst Suche und Typ zurück</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>Es gibt keine Datei, die neu gelesen werden könnte</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>Die Datei nennt keinen verschlüsselten Sender</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>Es ist keine Zeile ausgewählt.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Öffnen Sie eine Liste oder wählen Sie eine Empfangsart, die Sender enthält</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Öffnen Sie eine Datei mit Sendern dieser Empfangsart</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>In dieser Richtung gibt es keinen weiteren Schritt</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>In der Zwischenablage sind keine Zeilen, die Sender nennen</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>Die Liste wurde nicht aus einer Datei gelesen</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>Die Datei enthält diese Angabe zu diesen Sendern nicht</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>Beim Speichern wird die ersetzte Version der Datei aufbewahrt; von dieser Liste gibt es noch keine</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>Auf dieser Seite gelten schon die Voreinstellungen</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>Namen lassen sich nur in der analogen Liste ändern</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Geben Sie zuerst etwas in das Suchfeld ein</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Wählen Sie zuerst Sender in der Liste aus</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Wählen Sie zuerst genau zwei Sender aus</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>Von den ausgewählten Zeilen lässt sich nichts übernehmen.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>Keine der ausgewählten Zeilen ist angekreuzt.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>Es gibt nicht genug Sender zum Anordnen</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>In den Einstellungen ist ausgeschaltet, dass frühere Versionen aufbewahrt werden</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>In der ganzen Datei: TV und Radio, aus allen Empfangsarten</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender steht jetzt an anderer Stelle</numerusform>
            <numerusform>%n Sender stehen jetzt an anderer Stelle</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>Die Änderungen an „%1“ sind wieder da, aber noch nicht gespeichert</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Lücken gefüllt: %n Nummer geändert</numerusform>
            <numerusform>Lücken gefüllt: %n Nummern geändert</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>Exportiert nach %1, als vollständige Senderliste.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>Exportiert nach %1.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>Nichts geändert: Die Zeilen sind noch die von „%1“, gewählt ist aber „%2“</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender nach „%1“ geändert</numerusform>
            <numerusform>%n Sender nach „%1“ geändert</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender gesperrt</numerusform>
            <numerusform>%n Sender gesperrt</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender auf %1 verschoben</numerusform>
            <numerusform>%n Sender auf %1 verschoben</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender nach unten verschoben</numerusform>
            <numerusform>%n Sender nach unten verschoben</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender ans Ende verschoben</numerusform>
            <numerusform>%n Sender ans Ende verschoben</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender an den Anfang verschoben</numerusform>
            <numerusform>%n Sender an den Anfang verschoben</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender nach oben verschoben</numerusform>
            <numerusform>%n Sender nach oben verschoben</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>Nichts geschrieben: Zu dieser Liste ist noch eine Frage offen</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>Kein Sender der Liste hat „%1“ im Namen</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>„%1“ wurde gespeichert, aber die Datei verlor: %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>Die Änderungen an „%1“ gingen bei einem Absturz verloren, denn sie können nicht aufbewahrt werden: %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>Nichts verschoben: Die Nummer muss zwischen 1 und %1 liegen</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>Nichts übernommen: Die Liste hat sich inzwischen geändert</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>Reihenfolge von „%1“ übernommen</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Nur „%1“ wurde genommen, denn dieses Fenster fasst eine Liste. %n weitere Datei wurde abgelegt</numerusform>
            <numerusform>Nur „%1“ wurde genommen, denn dieses Fenster fasst eine Liste. %n weitere Dateien wurden abgelegt</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n weitere Nummer geändert</numerusform>
            <numerusform>%n weitere Nummern geändert</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n weiterer ans Ende gestellt</numerusform>
            <numerusform>%n weitere ans Ende gestellt</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>Nichts verschoben: Die Sender oder die Zeile, an deren Platz sie sollten, sind nicht mehr in der angezeigten Liste</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>Nichts verschoben: Die Sender stehen schon dort</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>Gedruckt nach %1.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>Version vom %1 zurückgeholt</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>„%1“ wurde neu vom Datenträger gelesen</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Sender in „%1“ umbenannt</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Repariert gespeichert, wie Sie es gewählt haben: Es ging nichts verloren.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>„%1“ ist wieder wie zuletzt gespeichert</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>Diese Liste ist zum Ausprobieren erfunden. Keine Ihrer Dateien wird verändert.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>Gespeichert unter %1.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender wird übersprungen</numerusform>
            <numerusform>%n Sender werden übersprungen</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>Die Sender %1 und %2 haben ihre Nummern getauscht</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender aus „%1“ übernommen</numerusform>
            <numerusform>%n Sender aus „%1“ übernommen</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>„%1“ hat sich auf dem Datenträger nicht geändert</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender entsperrt</numerusform>
            <numerusform>%n Sender entsperrt</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Sender wird nicht mehr übersprungen</numerusform>
            <numerusform>%n Sender werden nicht mehr übersprungen</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Zu einem anderen Schritt des Verlaufs gewechselt</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>Die Datei ist größer, als dort erlaubt ist</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>Es sind zu viele Dateien geöffnet</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Beispiel ausprobieren</translation>
    </message>
    <message id="kTV">
        <source></source>
        <translation>&amp;TV</translation>
    </message>
    <message id="kTypeFilter">
        <source></source>
        <translation>Typ</translation>
    </message>
    <message id="kUndoLink">
        <source></source>
        <translation>Rückgängig</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>Die Version von „%1“, die ersetzt würde, konnte nicht aufbewahrt werden.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>Beim Speichern wird sie endgültig ersetzt: Sie wird nicht unter den früheren Versionen sein, die in „%1“ aufbewahrt werden.</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>Was jetzt an der Stelle von „%1“ liegt, kann nicht gelesen werden.</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>Es lässt sich nicht sagen, ob ein anderes Programm die Datei geändert hat. Wenn Sie jetzt speichern, geht verloren, was dort ist.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>„%1“ wurde geschrieben, aber der Datenträger bestätigt nicht, dass die Datei sicher gespeichert ist.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>Die Liste gilt weiter als geändert. Speichern Sie sie noch einmal, oder speichern Sie eine Kopie auf einem anderen Datenträger.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Unbenannt</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>Das System nennt keinen Grund</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>Die beschädigte Datei bleibt, wie sie ist. Wählen Sie einen anderen Namen oder einen anderen Ordner.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Übliche Spalten</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Vergleichen …</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Beschädigt oder nicht mehr da; sie kann nicht mehr gelesen werden</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>Diese Version ist beschädigt: Sie ist nicht mehr, was aufbewahrt wurde.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>Verglichen mit jetzt</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (die erste)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>Aus ihr lässt sich keine Senderliste lesen</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Öffnen</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Wird verglichen …</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>Was „%1“ enthielt, bevor darüber gespeichert wurde:</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Größe</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Ein anderes Programm legt gerade eine Version in „%1“ ab und wird nicht fertig.</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>Alle Sender</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Frühere Versionen</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>Was in „%1“ schon von dieser Datei aufbewahrt ist, lässt sich zurzeit nicht lesen.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Unbekannt</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>Der Datenträger hat nicht die ganze Datei aufgenommen: %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>„%1“ ist schreibgeschützt.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Treffer</numerusform>
            <numerusform>Treffer</numerusform>
        </translation>
    </message>
</context>
</TS>
