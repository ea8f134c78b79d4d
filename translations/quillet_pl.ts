<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Nieprawidłowy format pliku</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Pomoc programu Quillet</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>Wykorzystuje: %1.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Copyright 2026 Autorzy programu Quillet. Wolne oprogramowanie na licencji MIT.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>Porządkuje listy kanałów telewizorów LG.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>O programie Quillet</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Wersja %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analogowe</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 i jeszcze %n</numerusform>
            <numerusform>%1 i jeszcze %n</numerusform>
            <numerusform>%1 i jeszcze %n</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Antena</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>Zastosuj &amp;kolejność…</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Ułóż tę listę w kolejności innej listy</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Wybierz listę wzorcową</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Porządkuje %n wyświetlany kanał w obrębie numerów, które teraz zajmuje.</numerusform>
            <numerusform>Porządkuje wszystkie wyświetlane kanały (%n) w obrębie numerów, które teraz zajmują.</numerusform>
            <numerusform>Porządkuje wszystkie wyświetlane kanały (%n) w obrębie numerów, które teraz zajmują.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Kodowanie</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Częstotliwość</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Nazwa</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Sieć</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Numer</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Satelita</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>ID usługi</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Typ (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Kierunek</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Malejąco</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Najpierw kodowane</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Uporządkuj według:</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>Najpierw niekodowane</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>Wszystkie te kanały są już w tej kolejności.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Nic więcej</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Uporządkuj</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał zmieniłby miejsce.</numerusform>
            <numerusform>%n kanały zmieniłyby miejsce.</numerusform>
            <numerusform>%n kanałów zmieniłoby miejsce.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Porządkuje %n wybrany kanał w obrębie numerów, które teraz zajmuje.</numerusform>
            <numerusform>Porządkuje %n wybrane kanały w obrębie numerów, które teraz zajmują.</numerusform>
            <numerusform>Porządkuje %n wybranych kanałów w obrębie numerów, które teraz zajmują.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>&amp;Następnie według:</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>Następnie &amp;według:</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Uporządkuj kanały w obrębie numerów, które zajmują</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Uporządkuj kanały</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Rosnąco</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>Nie można użyć plików tego typu</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>Sekcja %1 nie zawiera listy kanałów.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Pierwszy kanał sekcji %1 znajduje się %n znak za początkiem sekcji; dozwolonych jest najwyżej %2.</numerusform>
            <numerusform>Pierwszy kanał sekcji %1 znajduje się %n znaki za początkiem sekcji; dozwolonych jest najwyżej %2.</numerusform>
            <numerusform>Pierwszy kanał sekcji %1 znajduje się %n znaków za początkiem sekcji; dozwolonych jest najwyżej %2.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Mimo to zmień numery</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał dostałby numer, którego lista kanałów nie pomieści.</numerusform>
            <numerusform>%n kanały dostałyby numery, których lista kanałów nie pomieści.</numerusform>
            <numerusform>%n kanałów dostałoby numery, których lista kanałów nie pomieści.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>Najwyższy numer to %1. Kanał powyżej niego dostaje niski numer, na przykład 0, a czasem także oznaczenie radia.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Przywróć</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Kabel</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>Anuluj</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>Plik „%1” został zmieniony przez inny program.</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>Jeśli teraz zapiszesz, zmiany wprowadzone przez inny program zostaną utracone.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Wybierz inne miejsce…</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Wyczyść wyszukiwanie i typ</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Wyczyść menu</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Wyczyść wyszukiwanie</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Schowek</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Zamknij</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Zamknij bez zapisywania</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Blokada</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Kodowany</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Częstotliwość</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Ukryty</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Nazwa</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Sieć</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>ID sieci</translation>
    </message>
    <message id="kColumnNumber">
        <source></source>
        <translation>Nr</translation>
    </message>
    <message id="kColumnNumberFull">
        <source></source>
        <translation>Numer</translation>
    </message>
    <message id="kColumnSatellite">
        <source></source>
        <translation>Satelita</translation>
    </message>
    <message id="kColumnServiceId">
        <source></source>
        <translation>Usługa</translation>
    </message>
    <message id="kColumnServiceIdFull">
        <source></source>
        <translation>ID usługi</translation>
    </message>
    <message id="kColumnSkipped">
        <source></source>
        <translation>Pomijaj</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Strumień</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>ID strumienia transportowego</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Typ</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>Wszystkie listy</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Zastosuj</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>W schowku</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Różnica</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>Nic się nie różni.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>„%1” nie zawiera listy do porównania.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>Dysk nie zachował tego, co zostało zapisane. Może być pełny lub uszkodzony.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Inne dane</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Porównaj z</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>Nie pasuje do kanału</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Pomijanie lub blokada</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>Lista</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Przenieś</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Inny numer</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (jak odczytano)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Nazwa tam</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1 z %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (stan z godz. %2)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>Żaden kanał zaznaczonego powyżej rodzaju nie pasuje do wyszukiwania.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>W tym nic się nie różni</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>Nowy nr</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>Nr tam</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Tylko tutaj</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Tylko tam</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Wklej</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Inna nazwa</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Takie same</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Porównane kanały</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Przejmij</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>Porównanie z „%1”</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>Zmiany z „%1”</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>Kolejność z „%1”</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Kanały do wklejenia</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Trafia na koniec</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Niepewne</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>Plik jest pusty lub nie jest listą kanałów.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>Jeśli zapiszesz kopię, to okno będzie dalej pracować z kopią: odtąd „Zapisz” zapisuje właśnie do niej.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>Nie można utworzyć nowego pliku w folderze „%1”: %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>Porządkowanie list kanałów telewizorów LG</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Edytor list kanałów</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, kanał, stacja, telewizor, telewizja, TV, radio, satelita, kablówka, sortowanie</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Telewizor:</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał mniej</numerusform>
            <numerusform>%n kanały mniej</numerusform>
            <numerusform>%n kanałów mniej</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał z innymi danymi</numerusform>
            <numerusform>%n kanały z innymi danymi</numerusform>
            <numerusform>%n kanałów z innymi danymi</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał, którego już nie ma</numerusform>
            <numerusform>%n kanały, których już nie ma</numerusform>
            <numerusform>%n kanałów, których już nie ma</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał z inną blokadą</numerusform>
            <numerusform>%n kanały z inną blokadą</numerusform>
            <numerusform>%n kanałów z inną blokadą</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał więcej</numerusform>
            <numerusform>%n kanały więcej</numerusform>
            <numerusform>%n kanałów więcej</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał z inną nazwą</numerusform>
            <numerusform>%n kanały z innymi nazwami</numerusform>
            <numerusform>%n kanałów z innymi nazwami</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>bez %n nowego</numerusform>
            <numerusform>bez %n nowych</numerusform>
            <numerusform>bez %n nowych</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał pod innym numerem</numerusform>
            <numerusform>%n kanały pod innymi numerami</numerusform>
            <numerusform>%n kanałów pod innymi numerami</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>Te same kanały w innej kolejności</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>Te same kanały w tej samej kolejności</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał z innym oznaczeniem pomijania</numerusform>
            <numerusform>%n kanały z innym oznaczeniem pomijania</numerusform>
            <numerusform>%n kanałów z innym oznaczeniem pomijania</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>Odrzuć</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Odrzuć zmiany</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>Nie wszystko udało się odrzucić. Inny program używa tych folderów albo nie wolno w nich niczego usuwać:</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>Czy chcesz odrzucić niezapisane zmiany w pliku „%1”?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Czy chcesz odrzucić niezapisane zmiany w %n liście?</numerusform>
            <numerusform>Czy chcesz odrzucić niezapisane zmiany w %n listach?</numerusform>
            <numerusform>Czy chcesz odrzucić niezapisane zmiany w %n listach?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>Potem nie będzie można ich przywrócić.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>Czy chcesz odrzucić niezapisane zmiany, których nie można odczytać?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>dysk zgłasza błąd; może być uszkodzony</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>na dysku nie ma już miejsca</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>dysk został odłączony</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>UTF-8 ze znacznikiem (do arkuszy kalkulacyjnych)</translation>
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
        <translation>Windows-1252 (Europa Zachodnia)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Jedyny kanał tej listy</numerusform>
            <numerusform>Wszystkie kanały tej listy (%n)</numerusform>
            <numerusform>Wszystkie kanały tej listy (%n)</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał nie ma pełnych identyfikatorów i jest rozpoznawany tylko po nazwie.</numerusform>
            <numerusform>%n kanały nie mają pełnych identyfikatorów i są rozpoznawane tylko po nazwie.</numerusform>
            <numerusform>%n kanałów nie ma pełnych identyfikatorów i są rozpoznawane tylko po nazwie.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>W %n nazwie przecinki i spacje zastępują średniki i końce wierszy; po tej nazwie kanału nie da się rozpoznać.</numerusform>
            <numerusform>W %n nazwach przecinki i spacje zastępują średniki i końce wierszy; po tych nazwach kanałów nie da się rozpoznać.</numerusform>
            <numerusform>W %n nazwach przecinki i spacje zastępują średniki i końce wierszy; po tych nazwach kanałów nie da się rozpoznać.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>Ko&amp;dowanie:</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>Zapisywana jest kopia całej listy kanałów pod wybraną nazwą. Plik tego okna pozostaje bez zmian. Kolejność kopii można zastosować do innych list, jeśli jej nazwa kończy się na „.tll”.</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>Nie można wyeksportować listy jako „%1”.</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Format:</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>&amp;Z kluczami kanałów, aby importować zmiany</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Eksport listy</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n znak nie istnieje w tym kodowaniu; zamiast niego jest „?”.</numerusform>
            <numerusform>%n znaki nie istnieją w tym kodowaniu; zamiast nich jest „?”.</numerusform>
            <numerusform>%n znaków nie istnieje w tym kodowaniu; zamiast nich jest „?”.</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał ma liczby jako identyfikatory: listy z identyfikatorami tekstowymi rozpoznają go po nich, ta lista tylko po nazwie.</numerusform>
            <numerusform>%n kanały mają liczby jako identyfikatory: listy z identyfikatorami tekstowymi rozpoznają je po nich, ta lista tylko po nazwach.</numerusform>
            <numerusform>%n kanałów ma liczby jako identyfikatory: listy z identyfikatorami tekstowymi rozpoznają je po nich, ta lista tylko po nazwach.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Eksportuj…</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Strona do wydrukowania (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Lista wzorcowa do zastosowania kolejności (tekst)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał o zmienionej nazwie nie ma pełnych identyfikatorów: zostanie rozpoznany dopiero po zapisaniu i ponownym otwarciu listy.</numerusform>
            <numerusform>%n kanały o zmienionej nazwie nie mają pełnych identyfikatorów: zostaną rozpoznane dopiero po zapisaniu i ponownym otwarciu listy.</numerusform>
            <numerusform>%n kanałów o zmienionej nazwie nie ma pełnych identyfikatorów: zostaną rozpoznane dopiero po zapisaniu i ponownym otwarciu listy.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>Se&amp;parator:</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Tylko jeden pokazany</numerusform>
            <numerusform>Tylko %n pokazane</numerusform>
            <numerusform>Tylko %n pokazanych</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Kanały:</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Tabela do arkuszy kalkulacyjnych (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Eksportuj jako listę wzorcową (kopia całego pliku)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>Kolejność odczytuje się z co najmniej trzech kanałów: tego pliku nie dałoby się zastosować.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>„%1” nie mówi, czy kanał ma to oznaczenie; wystarczy 1 lub 0.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>„%1” nie jest numerem od 1 do 16383.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Wiersz %1, kolumna %2 „%3”:</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>Są dwie kolumny „%1”.</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>Pierwszy wiersz musi zawierać tytuły kolumn takie, jak wyeksportowano, w tym „Nazwa”, „Usługa” lub „stationKey”.</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>Nie ma wierszy z kanałami.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Wiersz %1, znak %2:</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>Za cudzysłowem zamykającym jest jeszcze tekst.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>Tabela jest za duża.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>„%1” nie jest w kolumnie z tytułem.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>Tu zaczyna się cudzysłów, który nigdzie się nie kończy.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>To nie jest plik tekstowy.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>Nie ma pliku w miejscu „%1”.</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>Plik</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>Plik jest o wiele za duży jak na listę kanałów.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>Nie można odczytać pliku: %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>Wypełniaj &amp;luki</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>Numeruj listę 1, 2, 3… bez luk, teraz i po każdym przeniesieniu</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>Wszystkie typy</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>Wszystkie pliki</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Listy kanałów</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Inne</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>Strony HTML</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Listy wzorcowe</translation>
    </message>
    <message id="kFilterSD">
        <source></source>
        <translation>SD</translation>
    </message>
    <message id="kFilterTables">
        <source></source>
        <translation>Tabele</translation>
    </message>
    <message id="kFilterTextFiles">
        <source></source>
        <translation>Pliki tekstowe</translation>
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
        <translation>Folderu „%1” już nie ma.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>Został przeniesiony lub usunięty albo odłączono jego dysk. Niczego nie zapisano i niczego nie utracono: lista ze wszystkimi zmianami nadal jest w tym oknie.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>w tym miejscu jest folder</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>Nie udało się uruchomić programu, który pokazałby folder „%1”.</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>Te kanały pochodzą ze źródła „%1”. Wyczyść wyszukiwanie i typ, aby zobaczyć źródło „%2”.</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>Pliku „%1” już nie ma.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>Plik został przeniesiony lub usunięty albo odłączono dysk, na którym był. Zapis tutaj utworzy w tym miejscu nowy plik; jeśli ma trafić na pendrive, najpierw go podłącz.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Wstecz</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Znajdź</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Zamknij pasek wyszukiwania</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Wynik %1 z %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Znajdź na tej stronie</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Następny wynik</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>Nie znaleziono na tej stronie</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Poprzedni wynik</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Znajdź słowo na tej stronie</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>Naprzód</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Strona początkowa</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Otwórz w przeglądarce</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>Otwórz w Chrome</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Nawigacja</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>Nie otwarto listy kanałów</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Upuść plik TLL z telewizora w tym oknie lub wybierz go.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>To źródło nie zawiera stacji radiowych</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>Brak kanałów</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>Ten plik nie zawiera kanałów. Możesz upuścić tutaj inny plik TLL.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>To źródło nie zawiera kanałów TV</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Otwórz plik…</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Stacje radiowe z list tego rodzaju nie są pokazywane</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Te, które są na liście, pozostają w pliku.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>Pokaż jego stacje radiowe</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>Pokaż jego kanały TV</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Bieżący</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Najstarszy zachowany krok</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (zapisano)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>Lista po otwarciu</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>Historia</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Cofnięto</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>Tabela nie ma kolumny „stationKey”: niektóre kanały są rozpoznawane tylko po nazwie.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Zmieniono numery i kolejność wierszy i nie zgadzają się: liczą się numery.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>Numery są bez zmian, ale wiersze są w innej kolejności: kanały dostają kolejność wierszy.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>Nie można zaimportować „%1”. Lista pozostaje bez zmian.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>Wiersze pasują do innej listy z tego pliku: %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>Tabela nie podaje numerów: kanały dostają kolejność wierszy.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Import zmian z tabeli</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n wiersz jest niejasny: jego klucz i nazwa nie pasują do siebie albo kanał występuje ponownie.</numerusform>
            <numerusform>%n wiersze są niejasne: klucz i nazwa nie pasują do siebie albo kanał występuje kilka razy.</numerusform>
            <numerusform>%n wierszy jest niejasnych: klucz i nazwa nie pasują do siebie albo kanał występuje kilka razy.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Kolumny, które nie są odczytywane: %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n wiersz tabeli nie wskazuje kanału.</numerusform>
            <numerusform>%n wiersze tabeli nie wskazują kanału.</numerusform>
            <numerusform>%n wierszy tabeli nie wskazuje kanału.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Informacje…</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>Zawartość</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Pole</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Pola kanału</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Pokaż wszystkie pola wybranego kanału</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>używa go inny program</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>„%1” jest folderem.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Zachowaj moją</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>Polski</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Później</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>Dowiązanie do pliku prowadzi z powrotem do siebie.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>Nie można otworzyć listy kanałów.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Tu nie można niczego przejąć</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1: niezaznaczone</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1: zaznaczone</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Poprawiono %n pojedynczy znak „&amp;”.</numerusform>
            <numerusform>Poprawiono %n pojedyncze znaki „&amp;”.</numerusform>
            <numerusform>Poprawiono %n pojedynczych znaków „&amp;”.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Poprawiono %n pojedynczy znak „&lt;”.</numerusform>
            <numerusform>Poprawiono %n pojedyncze znaki „&lt;”.</numerusform>
            <numerusform>Poprawiono %n pojedynczych znaków „&lt;”.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Usunięto %n znak sterujący.</numerusform>
            <numerusform>Usunięto %n znaki sterujące.</numerusform>
            <numerusform>Usunięto %n znaków sterujących.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>Ostatni kanał był ucięty; zachowano to, co pozostało z niego w całości.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>Ostatni kanał był ucięty i trzeba było go pominąć.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>Brakowało końca pliku; został dodany.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Usunięto %n fragment tekstu spoza listy.</numerusform>
            <numerusform>Usunięto %n fragmenty tekstu spoza listy.</numerusform>
            <numerusform>Usunięto %n fragmentów tekstu spoza listy.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Poprawiono %n brakujący lub błędny znacznik.</numerusform>
            <numerusform>Poprawiono %n brakujące lub błędne znaczniki.</numerusform>
            <numerusform>Poprawiono %n brakujących lub błędnych znaczników.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>To jest naprawiona kopia pliku „%1”. Sam plik pozostaje bez zmian.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>&amp;O programie Quillet</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>Zapisuj listy &amp;JSON naprawione</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;logowe</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Antena</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>Za&amp;stosuj kolejność…</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>&amp;Uporządkuj…</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Kabel</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>Za&amp;mknij</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>Kolu&amp;mny</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Poró&amp;wnaj z</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>Inną &amp;listą…</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>Plikiem w stanie o&amp;dczytanym</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>Kopiu&amp;j</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>&amp;Edycja</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>&amp;Eksportuj jako listę wzorcową…</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>Ekspor&amp;tuj…</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;Plik</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>Wypełniaj &amp;luki</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>Wszystkie t&amp;ypy</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>I&amp;nne</translation>
    </message>
    <message id="kMenuFilterSD">
        <source></source>
        <translation>S&amp;D</translation>
    </message>
    <message id="kMenuFilterTV">
        <source></source>
        <translation>Tylko T&amp;V</translation>
    </message>
    <message id="kMenuFilterUHD">
        <source></source>
        <translation>&amp;UHD</translation>
    </message>
    <message id="kMenuFind">
        <source></source>
        <translation>&amp;Znajdź</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>Znajdź &amp;następny</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>Znajdź &amp;poprzedni</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Znajdź…</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>&amp;Pomoc programu Quillet</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>H&amp;istoria</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>Im&amp;portuj zmiany…</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>&amp;Informacje o kanale</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>&amp;Blokada rodzicielska</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>Przenieś w &amp;dół</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>Prze&amp;nieś do…</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>Przenieś na koni&amp;ec</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>Przenieś na p&amp;oczątek</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>Przenieś w &amp;górę</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;Nowy</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>&amp;Otwórz…</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>Ostatnio &amp;używane</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>W&amp;klej</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>Pre&amp;ferencje…</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>&amp;Drukuj…</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>Drukuj zwi&amp;ęźle…</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>Stacje &amp;radiowe</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>Otwórz &amp;folder odzyskiwania</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>Ponó&amp;w</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>Ponó&amp;w: %1</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>Wcz&amp;ytaj ponownie z dysku</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>Z&amp;mień nazwę</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>Od&amp;rzuć zmiany</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>&amp;Wypróbuj przykład</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>&amp;Satelita</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>Zapisz j&amp;ako…</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>Wybie&amp;rz</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;Wszystkie</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>&amp;Kodowane</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>&amp;Odwróć wybór</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>Ża&amp;dne</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>Ten sam &amp;typ</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>&amp;Pomijaj</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>Z&amp;amień numery</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>&amp;Większy</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normalny</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>Rozmiar t&amp;ekstu</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>&amp;Mniejszy</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>Kanały &amp;TV</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>&amp;Cofnij: %1</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>Niezap&amp;isane listy…</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>Wcześniejsze wer&amp;sje…</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>&amp;Widok</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>lista kanałów LG</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>Prze&amp;nieś do…</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>Nadaj wybranym kanałom nowe numery</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przenieś wybrany kanał na numer (od 1 do 9999):</numerusform>
            <numerusform>Przenieś wybrane kanały na numer (od 1 do 9999):</numerusform>
            <numerusform>Przenieś wybrane kanały na numer (od 1 do 9999):</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Przenieś</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>istnieje już plik o tej nazwie</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>nazwa jest za długa</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>dysk lub sieć nie odpowiada</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>Żaden kanał nie pasuje do wyszukiwania i typu.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>Za mało pamięci dla tej listy. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>Lista nie ma żadnej z wybranych stron.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>„%1” nie jest zwykłym plikiem.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>nie masz do tego uprawnień</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>Można otwierać tylko pliki z tego komputera.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zabrakło numerów: kończą się na %1, a %n kanał o powtórzonym numerze nie mógł dostać wolnego. Po zapisaniu miałby niski numer, jako radio.</numerusform>
            <numerusform>Zabrakło numerów: kończą się na %1, a %n kanały o powtórzonych numerach nie mogły dostać wolnych. Po zapisaniu miałyby niskie numery, jako radio.</numerusform>
            <numerusform>Zabrakło numerów: kończą się na %1, a %n kanałów o powtórzonych numerach nie mogło dostać wolnych. Po zapisaniu miałyby niskie numery, jako radio.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>Nie znaleziono kanałów, ponieważ wygląda to na listę binarną, a nie na plik tekstowy TLL.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Zamknij ten komunikat</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>Plik jest uszkodzony w wierszu %1, za kanałem „%2”.</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>Plik jest uszkodzony w wierszu %1, przed pierwszym pełnym kanałem.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>Plik jest uszkodzony w wierszu %1.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>Plik deklaruje kodowanie %1, ale jego litery są w UTF-8. Quillet pozostawia jedno i drugie bez zmian; telewizor, który zaufa deklaracji, źle pokaże litery ze znakami diakrytycznymi.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>Plik „%1” został zmieniony przez inny program. „Zachowaj moją” pozostawi listę taką, jaka jest tutaj, a następny zapis zastąpi plik.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>Pliku „%1” już nie ma: został przeniesiony, przemianowany lub usunięty albo odłączono jego dysk. Lista nadal jest w tym oknie; możesz zapisać ją w innym miejscu.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>Pliku „%1” nie można już odczytać. %2 Lista nadal jest w tym oknie; możesz zapisać ją w innym miejscu.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>Nie znaleziono kanałów, ponieważ nie udało się zdekodować tekstu JSON, który je zawiera (wiersz %1, kolumna %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>Nie znaleziono kanałów, ponieważ tekst JSON, który je zawiera, nie jest kompletny.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>Plik nie jest poprawnym UTF-8 i został zdekodowany jako Latin-1. Zapis odbywa się w UTF-8, co zmieni w całym pliku każdą literę ze znakiem diakrytycznym.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>Od wiersza %1 plik nie został odczytany: zawiera tam więcej pól, atrybutów lub zagnieżdżonych elementów niż jakakolwiek lista telewizora.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>Nie znaleziono kanałów, ponieważ jest to tekst innego rodzaju, a nie plik TLL.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>Tego pliku nie można zmienić: on sam, jego folder lub dysk jest chroniony przed zapisem. Aby zachować zmiany, zapisz kopię; proponuje to „Zapisz”.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Nie odczytano %n następnego kanału (&lt;ITEM&gt;); zapisanie tej listy spowodowałoby jego utratę.</numerusform>
            <numerusform>Nie odczytano %n następnych kanałów (&lt;ITEM&gt;); zapisanie tej listy spowodowałoby ich utratę.</numerusform>
            <numerusform>Nie odczytano %n następnych kanałów (&lt;ITEM&gt;); zapisanie tej listy spowodowałoby ich utratę.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>Dalszej części nie odczytano.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>uprawnienia poszczególnych użytkowników i grup</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>atrybuty rozszerzone</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>grupę</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>inne nazwy, pod którymi nadal jest stara lista</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>właściciela</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>część uprawnień</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>dysk na to nie pozwala lub nie dopuszcza tej nazwy</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>nie ma pliku lub jego folderu</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Otwórz</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>Ten plik jest otwarty w innym oknie. Wybierz inną nazwę lub inny folder.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>Nie można otworzyć pliku „%1”.</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Otwórz naprawioną kopię</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Otwórz listę kanałów</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>„%1” nie zawiera kolejności, którą można zastosować.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>To pełna lista kanałów, na przykład eksport. Nadaj jej nazwę zakończoną na .tll, aby przejąć jej kolejność.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>Jest to lista tego rodzaju, który przechowuje kanały jako JSON. Identyfikatory są w niej liczbami, po których nie rozpoznaje się kanałów z innych list.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Wiersze tej postaci w tym pliku: %1. Inne wiersze: %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>Kanały są rozpoznawane po identyfikatorach sieci, strumienia transportowego i usługi, a żaden kanał w tym pliku nie ma wszystkich trzech i nazwy.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>Plik tekstowy musi mieć co najmniej trzy wiersze postaci „101;Sample TV;1-10-300” i najwyżej dwa inne.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>Nie ma w nim stacji radiowych.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>Nie ma w nim kanałów TV.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>Kolejność można wziąć z plików TLL i z plików tekstowych (.txt).</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>system zgłasza błąd %1</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>za mało pamięci</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>To jest plik samej listy, a eksport nigdy go nie zastępuje. Wybierz inną nazwę lub inny folder.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Zanim wczytasz zmieniony plik do telewizora, zachowaj kopię pliku oryginalnego.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Wymiana list z arkuszami kalkulacyjnymi i ich drukowanie</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Przenoszenie kanałów na wybrany numer przeciąganiem, wpisywaniem lub klawiszami, z lukami lub bez</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>Przenoszenie kolejności ze starego telewizora na nowy i porównywanie dwóch list kanał po kanale</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Dwie listy porównane kanał po kanale</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>Lista kanałów w swoim oknie</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet porządkuje listę kanałów telewizora LG na komputerze. Telewizor eksportuje kanały na pamięć USB jako plik TLL, setki kanałów można ułożyć w wybranej kolejności, a telewizor wczytuje plik z powrotem.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>Pierwsze wydanie.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Cofanie każdego kroku, odzyskiwanie niezapisanych zmian po awarii, przywracanie wcześniejszych wersji pliku</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>Edycja list w skryptach i przechowywanie ich w Git za pomocą narzędzia quillet-cli</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Strona %1 z %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n wiersz schowka nie wskazuje kanału.</numerusform>
            <numerusform>%n wiersze schowka nie wskazują kanału.</numerusform>
            <numerusform>%n wierszy schowka nie wskazuje kanału.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>Nie można zachować uprawnień dostępu do pliku: %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Kolumny dla:</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>Ogólne</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>Listy JSON</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Przechowuj, aby przywrócić je po awarii</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>Gdy jest wyłączone, awaria powoduje utratę niezapisanych zmian. To, co już przechowano, pozostaje do zapisania lub zamknięcia listy.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Przechowuj to, co zapis zastępuje</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Język:</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Zadziała przy następnym uruchomieniu Quillet.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>Jak w systemie</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Pytania</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Tylko jeśli nic się przy tym nie traci. Quillet zawsze pyta, zanim zostaną utracone zmiany, kanały lub to, co inni zapisali w pliku.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>Zapisuj listy JSON naprawione bez pytania</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Zapisywanie</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Pokaż folder</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Tabela</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Rozmiar tekstu:</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Preferencje</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Niezapisane zmiany</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Przywróć domyślne</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>Dla każdego pliku, oprócz pierwszej:</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Wcześniejsze wersje</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>Pierwsza wersja każdego pliku zawsze pozostaje. Po przekroczeniu limitów najstarsze znikają przy następnym zapisie. Wyłączenie niczego nie usuwa. Tych ustawień przestrzega też quillet‑cli.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Miejsce na wszystkie:</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>Zajęte: %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>Listy XML</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>Podgląd zmienił się w międzyczasie; to jest nowy.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numer zostałby nadany kilkakrotnie.</numerusform>
            <numerusform>%n numery zostałyby nadane kilkakrotnie.</numerusform>
            <numerusform>%n numerów zostałoby nadanych kilkakrotnie.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numer jest w tabeli nadany kilkakrotnie.</numerusform>
            <numerusform>%n numery są w tabeli nadane kilkakrotnie.</numerusform>
            <numerusform>%n numerów jest w tabeli nadanych kilkakrotnie.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numer jest tam nadany kilkakrotnie.</numerusform>
            <numerusform>%n numery są tam nadane kilkakrotnie.</numerusform>
            <numerusform>%n numerów jest tam nadanych kilkakrotnie.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Obejmuje to %n zaznaczony wiersz, którego nie widać.</numerusform>
            <numerusform>Obejmuje to %n zaznaczone wiersze, których nie widać.</numerusform>
            <numerusform>Obejmuje to %n zaznaczonych wierszy, których nie widać.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n blokada się zmienia</numerusform>
            <numerusform>%n blokady się zmieniają</numerusform>
            <numerusform>%n blokad się zmienia</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał dostaje inny numer lub miejsce</numerusform>
            <numerusform>%n kanały dostają inny numer lub miejsce</numerusform>
            <numerusform>%n kanałów dostaje inny numer lub miejsce</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>Obie listy nie mają żadnego wspólnego kanału.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>Nic by się nie zmieniło.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Podgląd…</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Znalezione kanały: %1. Trafiają na koniec: %2. Wpisy bez kanału: %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n zaznaczony kanał trafia na numer %1, gdzie teraz jest „%2”.</numerusform>
            <numerusform>%n zaznaczone kanały trafiają na numer %1, gdzie teraz jest „%2”.</numerusform>
            <numerusform>%n zaznaczonych kanałów trafia na numer %1, gdzie teraz jest „%2”.</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>Nie można niczego przenieść: żaden wiersz nie pasuje do kanału z wyświetlanej listy.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>Żaden wiersz nie jest zaznaczony: zaznacz kanały, które mają zostać przeniesione.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał zmienia nazwę</numerusform>
            <numerusform>%n kanały zmieniają nazwę</numerusform>
            <numerusform>%n kanałów zmienia nazwę</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Tylko wybrane: %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n oznaczenie pomijania się zmienia</numerusform>
            <numerusform>%n oznaczenia pomijania się zmieniają</numerusform>
            <numerusform>%n oznaczeń pomijania się zmienia</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>Lista zostaje ułożona według numerów.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał, którego numer zostaje zajęty, trafia na koniec: %1.</numerusform>
            <numerusform>%n kanały, których numery zostają zajęte, trafiają na koniec: %1.</numerusform>
            <numerusform>%n kanałów, których numery zostają zajęte, trafia na koniec: %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n wiersz nie pasuje do żadnego kanału.</numerusform>
            <numerusform>%n wiersze nie pasują do żadnego kanału.</numerusform>
            <numerusform>%n wierszy nie pasuje do żadnego kanału.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n wiersz niepewny lub z innej listy nie jest zaznaczony.</numerusform>
            <numerusform>%n wiersze niepewne lub z innej listy nie są zaznaczone.</numerusform>
            <numerusform>%n wierszy niepewnych lub z innej listy nie jest zaznaczonych.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>tylko %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Stacje radiowe, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>„%1”</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>Kanały TV, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>Nie udało się wydrukować „%1”.</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>Nie udało się otworzyć drukarki lub pliku albo nie przyjęto wszystkich stron.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>Drukuj do pliku</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>Nie udało się wydrukować listy do „%1”.</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Przywróć</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>Nie można przywrócić wersji.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>Jej kanały nie są dokładnie tymi samymi, które są teraz na liście; można ją tylko otworzyć.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>Lista jest teraz taka, jak wtedy.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>Przywrócenie to jeden krok, który można cofnąć; nic nie zostaje przy tym zapisane.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>Twój przydział miejsca na dysku został wykorzystany</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radio</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>Nie można sprawdzić nowego pliku. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>dysk jest chroniony przed zapisem</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 już nie istnieje.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Ostatnio używane listy</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Zmiany</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>To, co zachowano ze zmian, jest uszkodzone.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>Nie wszystko udało się przywrócić.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Folder</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Nazwa</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>Zmiany zachowała nowsza wersja programu.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>To starszy stan listy, którą właśnie przywrócono. Pozostaje zachowany: odrzuć go albo przywróć, gdy tamta zostanie zamknięta.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>Lista jest otwarta w oknie i ma tam zmiany. Najpierw je zapisz lub odrzuć.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>Lista sprzed zmian znajduje się w %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>Program zakończył działanie, zanim te zmiany zostały zapisane. Zachowano je i można je przywrócić.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Ostatnia zmiana</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Niezapisane listy</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>Nie można odczytać</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Wczytaj ponownie</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>Czy chcesz ponownie wczytać „%1” z dysku?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>Niezapisane zmiany zostaną utracone.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Usuń z listy</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>Zawiera niezapisane zmiany na listach, które nie są teraz wyświetlane. Otwarcie upuszczonego pliku spowoduje ich utratę.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>Nowy plik nie mógł zastąpić starego: %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>Zastąpić listę kanałów „%1”?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>Nie można ponownie odczytać pliku „%1”. Lista w tym oknie pozostaje bez zmian.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>Czy chcesz przywrócić ostatnio zapisaną wersję pliku „%1”?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>Wszystkie zmiany wprowadzone od tego czasu zostaną utracone.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Zapisuj wszystkie listy tego rodzaju (JSON) naprawione, bez pytania</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał straciłby część danych: %1</numerusform>
            <numerusform>%n kanały straciłyby część danych: %1</numerusform>
            <numerusform>%n kanałów straciłoby część danych: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał wystąpiłby dwukrotnie: %1</numerusform>
            <numerusform>%n kanały wystąpiłyby dwukrotnie: %1</numerusform>
            <numerusform>%n kanałów wystąpiłoby dwukrotnie: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>Litery ze znakami diakrytycznymi zostałyby zapisane w UTF-8, a plik deklaruje inne kodowanie.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>Eksport ma tylko tę jedną postać. Twój własny plik pozostaje bez zmian.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Utracone zostałyby uwagi lub dodatkowe dane między kanałami.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>Sprawdzanie, czy zapisanie „%1” nie spowoduje utraty danych…</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>Zapisanie „%1” spowodowałoby utratę danych.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zabrakłoby %n kanału: %1</numerusform>
            <numerusform>Zabrakłoby %n kanałów: %1</numerusform>
            <numerusform>Zabrakłoby %n kanałów: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>Nie da się zapisać tego pliku z mniejszą stratą. Przed zapisem zachowaj kopię starego pliku.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n liczba lub powtórzona wartość listy JSON zostałaby zapisana inaczej lub utracona.</numerusform>
            <numerusform>%n liczby lub powtórzone wartości listy JSON zostałyby zapisane inaczej lub utracone.</numerusform>
            <numerusform>%n liczb lub powtórzonych wartości listy JSON zostałoby zapisanych inaczej lub utraconych.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>Zapisanego pliku nie dałoby się ponownie otworzyć.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał otrzymałby inny numer: %1</numerusform>
            <numerusform>%n kanały otrzymałyby inny numer: %1</numerusform>
            <numerusform>%n kanałów otrzymałoby inny numer: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>„Zapisz naprawiony plik” niczego nie traci: zapisuje Twoje zmiany, a całą resztę pozostawia tak, jak została odczytana.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>„Zapisz naprawiony plik” zapisuje Twoje zmiany, a resztę pozostawia tak, jak została odczytana, ale nawet wtedy:</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>Utracone zostałyby dane, które telewizor przechowuje przed kanałami lub za nimi.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Wszystko, co znajduje się za uszkodzonym miejscem pliku, zostałoby utracone.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał za uszkodzonym miejscem pliku nie został odczytany i zostałby utracony.</numerusform>
            <numerusform>%n kanały za uszkodzonym miejscem pliku nie zostały odczytane i zostałyby utracone.</numerusform>
            <numerusform>%n kanałów za uszkodzonym miejscem pliku nie zostało odczytanych i zostałoby utraconych.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>znaleziony po nazwie</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>występuje kilka razy</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>tam na innej liście</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>inne dane</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>nie pasuje do żadnego kanału</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>tam niezablokowany</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>tam zablokowany</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>niepewne: podobna nazwa</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>inny numer</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>tylko tutaj</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>tylko tam</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>inna nazwa</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>tam niepomijany</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>tam pomijany</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>trafia na koniec</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>niepewne</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Przykładowa lista</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Satelita</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Zapisz</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Zapisz mimo to</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Zapisz jako…</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Zapisz listę kanałów jako</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>Czy chcesz zapisać zmiany w pliku „%1”?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Jeśli nie zapiszesz zmian, zostaną utracone.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Zapisz kopię…</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Zapisz kopię</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>Nie można zapisać pliku „%1”. Plik na dysku nie został zmieniony.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>Pliku „%1” już nie ma. Czy chcesz zapisać listę w innym miejscu?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>Plik został przeniesiony, przemianowany lub usunięty. Jeśli został usunięty, lista istnieje już tylko w tym oknie.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Zapisz tutaj mimo to</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Zapisz naprawiony plik</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Zapisz listę kanałów</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Zapisz bez zachowania tej wersji</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zapisz bez %n kanału</numerusform>
            <numerusform>Zapisz bez %n kanałów</numerusform>
            <numerusform>Zapisz bez %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Nazwa kanału</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>&amp;Szukaj:</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Przecinek</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Średnik</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Tabulator</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Kanały dopasowane: %1
Kanały niedopasowane: %2
Te ostatnie następują od numeru: %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>Zastosowano kolejność z pliku „%1”.</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Źródło</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Krok po kroku: z telewizora i z powrotem</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>Aby go uzyskać, włóż pamięć USB do telewizora i poszukaj w jego ustawieniach, wśród ustawień kanałów, pozycji, która kopiuje lub eksportuje listę kanałów na USB. Potem podłącz pamięć do tego komputera, zrób kopię pliku i otwórz ją.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>Co to jest plik TLL?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>To lista kanałów telewizora: jego kanały i ich numery. Telewizor zapisuje ją na pamięci USB, tutaj ją porządkujesz, a potem telewizor wczytuje ją z powrotem.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>kanał</numerusform>
            <numerusform>kanały</numerusform>
            <numerusform>kanałów</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Kanały</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Uporządkowanie %n kanału</numerusform>
            <numerusform>Uporządkowanie %n kanałów</numerusform>
            <numerusform>Uporządkowanie %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Wypełnienie luk</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>Import z „%1”</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zablokowanie %n kanału</numerusform>
            <numerusform>Zablokowanie %n kanałów</numerusform>
            <numerusform>Zablokowanie %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przeniesienie %n kanału</numerusform>
            <numerusform>Przeniesienie %n kanałów</numerusform>
            <numerusform>Przeniesienie %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>Kolejność z %1</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>Wersja z %1</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Zmiana nazwy na „%1”</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Pomijanie %n kanału</numerusform>
            <numerusform>Pomijanie %n kanałów</numerusform>
            <numerusform>Pomijanie %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Zamiana numerów</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>Przejęcie z „%1”</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Odblokowanie %n kanału</numerusform>
            <numerusform>Odblokowanie %n kanałów</numerusform>
            <numerusform>Odblokowanie %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Wyłączenie pomijania %n kanału</numerusform>
            <numerusform>Wyłączenie pomijania %n kanałów</numerusform>
            <numerusform>Wyłączenie pomijania %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Blokada</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Nazwy</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Numery i kolejność</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Przejmij:</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Przejmij wszystkie</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Przejmij wybrane</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Pomijanie</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>Wybrane kanały są już na końcu</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>Wybrane kanały są już na początku</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>Ta kolumna jest zawsze widoczna</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>Plik nie podaje tego dla żadnego kanału na tej liście</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>Kolumny są już takie jak zwykle</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>Po tej kolumnie import rozpoznaje kanały, niezależnie od kolejności i numerów</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>Typy można wybierać tylko dla kanałów TV</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>Wyświetlane kanały pochodzą z innego źródła; najpierw wyczyść wyszukiwanie i typ</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>Na dysku nie ma pliku do ponownego wczytania</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>Plik nie wskazuje żadnego kodowanego kanału</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>Żaden wiersz nie jest wybrany.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Otwórz listę lub wybierz źródło, które zawiera kanały</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Otwórz plik zawierający kanały z tego źródła</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>W tym kierunku nie ma już żadnego kroku</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>W schowku nie ma wierszy, które wskazują kanały</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>Lista nie została odczytana z pliku</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>Plik nie zawiera tej informacji o tych kanałach</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>Przy każdym zapisie zachowywana jest zastąpiona wersja pliku; tej listy jeszcze żadnej nie ma</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>Ta strona ma już ustawienia domyślne</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>Nazwy można zmieniać tylko na liście analogowej</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Najpierw wpisz coś w polu wyszukiwania</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Najpierw wybierz kanały na liście</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Najpierw wybierz dokładnie dwa kanały</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>Z wybranych wierszy nie można niczego przejąć.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>Żaden z wybranych wierszy nie jest zaznaczony.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>Jest za mało kanałów do uporządkowania</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>Przechowywanie wcześniejszych wersji jest wyłączone w preferencjach</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>W całym pliku: TV i radio, ze wszystkich źródeł</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał ma teraz inne miejsce</numerusform>
            <numerusform>%n kanały mają teraz inne miejsce</numerusform>
            <numerusform>%n kanałów ma teraz inne miejsce</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>Zmiany w pliku „%1” są z powrotem, ale jeszcze niezapisane</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Wypełniono luki: zmieniono %n numer</numerusform>
            <numerusform>Wypełniono luki: zmieniono %n numery</numerusform>
            <numerusform>Wypełniono luki: zmieniono %n numerów</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>Wyeksportowano do %1 jako pełną listę kanałów.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>Wyeksportowano do %1.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>Niczego nie zmieniono: wiersze są nadal z „%1”, a wybrano „%2”</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zmieniono %n kanał według „%1”</numerusform>
            <numerusform>Zmieniono %n kanały według „%1”</numerusform>
            <numerusform>Zmieniono %n kanałów według „%1”</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Zablokowano %n kanał</numerusform>
            <numerusform>Zablokowano %n kanały</numerusform>
            <numerusform>Zablokowano %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przeniesiono %n kanał na numer %1</numerusform>
            <numerusform>Przeniesiono %n kanały na numery %1</numerusform>
            <numerusform>Przeniesiono %n kanałów na numery %1</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przeniesiono w dół %n kanał</numerusform>
            <numerusform>Przeniesiono w dół %n kanały</numerusform>
            <numerusform>Przeniesiono w dół %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przeniesiono na koniec %n kanał</numerusform>
            <numerusform>Przeniesiono na koniec %n kanały</numerusform>
            <numerusform>Przeniesiono na koniec %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przeniesiono na początek %n kanał</numerusform>
            <numerusform>Przeniesiono na początek %n kanały</numerusform>
            <numerusform>Przeniesiono na początek %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przeniesiono w górę %n kanał</numerusform>
            <numerusform>Przeniesiono w górę %n kanały</numerusform>
            <numerusform>Przeniesiono w górę %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>Niczego nie zapisano: pytanie dotyczące tej listy jest jeszcze otwarte</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>Żaden kanał na liście nie ma w nazwie „%1”</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>Zapisano „%1”, ale plik utracił: %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>Zmiany w pliku „%1” przepadłyby przy awarii, bo nie można ich zachować osobno: %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>Niczego nie przeniesiono: numer musi być od 1 do %1</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>Nic nie przejęto: lista zmieniła się w międzyczasie</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>Zastosowano kolejność z „%1”</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Wzięto tylko „%1”: to okno mieści jedną listę. Upuszczono jeszcze %n plik</numerusform>
            <numerusform>Wzięto tylko „%1”: to okno mieści jedną listę. Upuszczono jeszcze %n pliki</numerusform>
            <numerusform>Wzięto tylko „%1”: to okno mieści jedną listę. Upuszczono jeszcze %n plików</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>zmieniono %n inny numer</numerusform>
            <numerusform>zmieniono %n inne numery</numerusform>
            <numerusform>zmieniono %n innych numerów</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n inny przeniesiono na koniec</numerusform>
            <numerusform>%n inne przeniesiono na koniec</numerusform>
            <numerusform>%n innych przeniesiono na koniec</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>Niczego nie przeniesiono: kanałów albo wiersza, do którego miały trafić, nie ma już na wyświetlanej liście</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>Niczego nie przeniesiono: kanały już tam są</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>Wydrukowano do %1.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>Przywrócono wersję z %1</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Ponowiono: %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>„%1” wczytano ponownie z dysku</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Zmieniono nazwę kanału na „%1”</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Zapisano naprawiony plik, zgodnie z Twoim wyborem: nic nie zostało utracone.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>„%1” jest taki, jak przy ostatnim zapisie</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>Ta lista została zmyślona na potrzeby prób. Żaden z Twoich plików nie zostanie zmieniony.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>Zapisano w %1.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał będzie pomijany</numerusform>
            <numerusform>%n kanały będą pomijane</numerusform>
            <numerusform>%n kanałów będzie pomijanych</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>Kanały %1 i %2 zamieniły się numerami</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Przejęto %n kanał z „%1”</numerusform>
            <numerusform>Przejęto %n kanały z „%1”</numerusform>
            <numerusform>Przejęto %n kanałów z „%1”</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>„%1” nie zmienił się na dysku</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Cofnięto: %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Odblokowano %n kanał</numerusform>
            <numerusform>Odblokowano %n kanały</numerusform>
            <numerusform>Odblokowano %n kanałów</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanał nie będzie już pomijany</numerusform>
            <numerusform>%n kanały nie będą już pomijane</numerusform>
            <numerusform>%n kanałów nie będzie już pomijanych</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Przejście do innego kroku historii</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>plik jest większy, niż wolno w tym miejscu</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>otwartych jest za dużo plików</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Wypróbuj przykład</translation>
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
        <translation>Cofnij</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>Nie udało się zachować wersji pliku „%1”, która zostałaby zastąpiona.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>Zapis zastąpi ją na zawsze: nie będzie jej wśród wcześniejszych wersji, przechowywanych w „%1”.</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>Nie można odczytać tego, co jest teraz w miejscu „%1”.</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>Nie wiadomo, czy inny program zmienił plik. Jeśli teraz zapiszesz, to, co tam jest, zostanie utracone.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>Zapisano „%1”, ale dysk nie potwierdza, że plik jest bezpiecznie zapisany.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>Lista pozostaje oznaczona jako zmieniona. Zapisz ją ponownie albo zapisz kopię na innym dysku.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Bez nazwy</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>system nie podaje przyczyny</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>Uszkodzony plik pozostaje bez zmian. Wybierz inną nazwę lub inny folder.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Zwykłe kolumny</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Porównaj…</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Uszkodzona lub brakująca; nie można jej już odczytać</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>Ta wersja jest uszkodzona: nie jest już tym, co zachowano.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>W porównaniu z obecną</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (pierwsza)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>Nie da się z niej odczytać listy kanałów</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Otwórz</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Porównywanie…</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>Co zawierał plik „%1”, zanim zapisano na nim zmiany:</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Rozmiar</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Inny program zbyt długo zachowuje wersję w „%1”.</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>Wszystkie kanały</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Wcześniejsze wersje</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>Tego, co w „%1” już zachowano z tego pliku, nie można w tej chwili odczytać.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Ostatnia zmiana</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Nieznana</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>Dysk nie przyjął całego pliku: %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>Plik „%1” jest chroniony przed zapisem.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>wynik</numerusform>
            <numerusform>wyniki</numerusform>
            <numerusform>wyników</numerusform>
        </translation>
    </message>
</context>
</TS>
