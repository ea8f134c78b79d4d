<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Bad file format</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Quillet Help</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>Made with %1.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Copyright 2026 The Quillet authors. Free software under the MIT licence.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>Sorts the channel lists of LG television sets.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>About Quillet</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Version %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analogue</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Antenna</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>&amp;Apply Order…</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Put this list into the order of another one</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Choose a Reference List</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Arranges the %n station shown among the numbers it holds now.</numerusform>
            <numerusform>Arranges all %n stations shown among the numbers they hold now.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Encryption</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Frequency</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Network</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Number</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>Service ID</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Type (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Direction</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Descending</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Encrypted First</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Arrange by:</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>Free First</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>All of these stations are in this order already.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Nothing Else</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Arrange</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station would change place.</numerusform>
            <numerusform>%n stations would change place.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Arranges the %n selected station among the numbers it holds now.</numerusform>
            <numerusform>Arranges the %n selected stations among the numbers they hold now.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>&amp;Then by:</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>T&amp;hen by:</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Sort stations among the numbers they hold</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Arrange Stations</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Ascending</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>Files of this type cannot be used</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>The section %1 holds no list of stations.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>The first station of the section %1 comes %n character after the start of the section; at most %2 are allowed.</numerusform>
            <numerusform>The first station of the section %1 comes %n characters after the start of the section; at most %2 are allowed.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Change Numbers Anyway</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station would get a number that a channel list cannot hold.</numerusform>
            <numerusform>%n stations would get numbers that a channel list cannot hold.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>The highest number there is is %1. A station beyond it comes out with a low number such as 0, and may be marked as radio.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Bring Back</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Cable</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>“%1” has been changed by another program.</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>If you save now, the changes made by the other program will be lost.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Choose Another Place…</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Clear Search and Type</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Clear Menu</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Clear search</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Clipboard</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Close Without Saving</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Lock</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Encrypted</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Frequency</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Hidden</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Network</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>Network ID</translation>
    </message>
    <message id="kColumnNumber">
        <source></source>
        <translation>No.</translation>
    </message>
    <message id="kColumnNumberFull">
        <source></source>
        <translation>Number</translation>
    </message>
    <message id="kColumnSatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kColumnServiceId">
        <source></source>
        <translation>Service</translation>
    </message>
    <message id="kColumnServiceIdFull">
        <source></source>
        <translation>Service ID</translation>
    </message>
    <message id="kColumnSkipped">
        <source></source>
        <translation>Skip</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Stream</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>Transport Stream ID</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>All lists</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Apply</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>On the clipboard</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Difference</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>Nothing differs.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>“%1” holds no list to compare with.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>What was written could not be read back from the disk. The disk may be full or damaged.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Other details</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Compare With</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>Fits no station</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Skip or lock</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>List</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Move</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Other number</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (as it was read)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Name there</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1 of %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (as it was at %2)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>No station is of a kind that is checked above and fits the search.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>Nothing of this differs</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>New no.</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>No. there</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Only here</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Only there</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Paste</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Other name</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Same</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Compared stations</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Take over</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>Comparison with “%1”</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>Changes from “%1”</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>Order of “%1”</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Stations to Paste</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Goes to the end</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Uncertain</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>The file is empty or not a channel list.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>If you save a copy, this window goes on with the copy: “Save” writes to it from then on.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>No new file could be made in the folder “%1”: %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>Sort the channel lists of LG television sets</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Channel List Editor</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, channel, station, television, TV, radio, satellite, cable, sort</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Television:</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station fewer</numerusform>
            <numerusform>%n stations fewer</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station with other details</numerusform>
            <numerusform>%n stations with other details</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station that has gone since</numerusform>
            <numerusform>%n stations that have gone since</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station with another child lock</numerusform>
            <numerusform>%n stations with other child locks</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station more</numerusform>
            <numerusform>%n stations more</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station with another name</numerusform>
            <numerusform>%n stations with other names</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>without %n that is new</numerusform>
            <numerusform>without %n that are new</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station at another number</numerusform>
            <numerusform>%n stations at other numbers</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>The same stations in another order</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>The same stations in the same order</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station with another skip mark</numerusform>
            <numerusform>%n stations with other skip marks</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>Discard</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Discard Changes</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>Not everything could be discarded. Another program is using these folders, or nothing may be deleted there:</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>Do you want to discard the unsaved changes to “%1”?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Do you want to discard the unsaved changes to %n list?</numerusform>
            <numerusform>Do you want to discard the unsaved changes to %n lists?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>They cannot be brought back afterwards.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>Do you want to discard unsaved changes that cannot be read?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>the disk reports a fault; it may be damaged</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>no space is left on the disk</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>the disk was removed</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>UTF-8 with mark (for spreadsheets)</translation>
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
        <translation>Windows-1252 (Western Europe)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>The one station of this list</numerusform>
            <numerusform>All %n stations of this list</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station has no complete identifiers and is found again by its name alone.</numerusform>
            <numerusform>%n stations have no complete identifiers and are found again by their names alone.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>In %n name commas and blanks stand for semicolons and line breaks; by that name its station is not found again.</numerusform>
            <numerusform>In %n names commas and blanks stand for semicolons and line breaks; by those names their stations are not found again.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>&amp;Encoding:</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>What is written is a copy of the whole channel list under the name you choose. The file of this window stays as it is. The order of the copy can be applied to other lists if its name ends in “.tll”.</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>The list could not be exported as “%1”.</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Format:</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>With station &amp;keys, to import changes</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Export List</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n character does not exist in this encoding: “?” stands for it.</numerusform>
            <numerusform>%n characters do not exist in this encoding: “?” stands for them.</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station has numbers as identifiers: lists with identifiers as text find it again by those, this list by its name alone.</numerusform>
            <numerusform>%n stations have numbers as identifiers: lists with identifiers as text find them again by those, this list by their names alone.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Export…</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Page to print (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Reference list for Apply Order (text)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n renamed station has no complete identifiers: it is found again once the list has been saved and opened anew.</numerusform>
            <numerusform>%n renamed stations have no complete identifiers: they are found again once the list has been saved and opened anew.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>Se&amp;parator:</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Only the one that is shown</numerusform>
            <numerusform>Only the %n that are shown</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Stations:</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Table for spreadsheets (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Export as Reference List (Copy of the Whole File)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>An order needs three stations at least: this file could not be applied.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>“%1” does not say whether the station has this mark; 1 or 0 would.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>“%1” is not a number from 1 to 16383.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Line %1, column %2 “%3”:</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>There are two columns “%1”.</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>The first row has to name the columns as they were exported, among them “Name”, “Service” or “stationKey”.</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>There are no rows of stations.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Line %1, character %2:</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>There is text after a closing quotation mark.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>The table is too large.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>“%1” is in no column that has a title.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>A quotation mark begins here that never ends.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>This is not a text file.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>There is no file at “%1”.</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>File</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>The file is far too large to be a channel list.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>The file could not be read: %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>Fill &amp;gaps</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>Number the list 1, 2, 3… without gaps, now and after each move</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>All types</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>All files</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Channel lists</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Other</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>HTML pages</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Reference lists</translation>
    </message>
    <message id="kFilterSD">
        <source></source>
        <translation>SD</translation>
    </message>
    <message id="kFilterTables">
        <source></source>
        <translation>Tables</translation>
    </message>
    <message id="kFilterTextFiles">
        <source></source>
        <translation>Text files</translation>
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
        <translation>The folder “%1” is no longer there.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>It was moved or deleted, or its disk was removed. Nothing was saved, and nothing is lost: the list with all its changes is still in this window.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>there is a folder in its place</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>No program could be started to show the folder “%1”.</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>These stations are from “%1”. Clear the search and the type to see “%2”.</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>“%1” is no longer there.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>The file was moved or deleted, or the disk it was on was removed. Saving here makes a new file in that place; if you want it on a stick, put the stick in first.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Find</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Close the find bar</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Match %1 of %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Find on this page</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Next match</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>Not found on this page</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Previous match</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Find a word on this page</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>Forward</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Start Page</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Open in Browser</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>Open in Chrome</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Navigation</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>No channel list is open</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Drop a TLL file from your television anywhere in this window, or choose one.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>This source has no radio stations</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>No stations</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>This file holds no stations. Another TLL file can be dropped here.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>This source has no TV stations</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Open a File…</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Radio stations of this kind of list are not shown</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Any that it has stay in the file.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>Show its radio stations</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>Show its TV stations</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Current</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Oldest Step Kept</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (saved)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>List as Opened</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>History</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Undone</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>The table has no column “stationKey”: some stations are recognised by their names alone.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Numbers and the order of the rows were both changed and do not agree: the numbers count.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>The numbers are unchanged but the rows are in another order: the stations get the order of the rows.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>“%1” cannot be imported. The list stays as it is.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>The rows fit another list of this file: %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>The table has no numbers: the stations get the order of the rows.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Import Changes from a Table</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n row is unclear: its key and its name do not agree, or the station is there again.</numerusform>
            <numerusform>%n rows are unclear: key and name do not agree, or a station is there several times.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Columns that are not read: %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n row of the table does not name a station.</numerusform>
            <numerusform>%n rows of the table do not name a station.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Info…</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>Content</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Field</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Fields of the station</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Show every field of the selected station</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>another program is using it</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>“%1” is a folder.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Keep Mine</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>English</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Later</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>The link to the file leads back to itself.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>The channel list could not be opened.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Nothing can be taken over here</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1: not checked</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1: checked</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n stray “&amp;” was corrected.</numerusform>
            <numerusform>%n stray “&amp;” were corrected.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n stray “&lt;” was corrected.</numerusform>
            <numerusform>%n stray “&lt;” were corrected.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n control character was removed.</numerusform>
            <numerusform>%n control characters were removed.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>The last station was cut off; the part that is intact was kept.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>The last station was cut off and had to be left out.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>The end of the file was missing and was added.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n piece of text outside the list was removed.</numerusform>
            <numerusform>%n pieces of text outside the list were removed.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n missing or wrong tag was corrected.</numerusform>
            <numerusform>%n missing or wrong tags were corrected.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>This is a repaired copy of “%1”. The file itself stays as it is.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>&amp;About Quillet</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>Save &amp;JSON Lists Repaired</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;logue</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Antenna</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>&amp;Apply Order…</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>Arra&amp;nge…</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Cable</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>&amp;Close</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>Colu&amp;mns</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Compare &amp;With</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>Another &amp;List…</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>File as It Was &amp;Read</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>Cop&amp;y</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>&amp;Edit</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>&amp;Export as Reference List…</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>E&amp;xport…</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;File</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>Fill &amp;Gaps</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>All T&amp;ypes</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>&amp;Other</translation>
    </message>
    <message id="kMenuFilterSD">
        <source></source>
        <translation>S&amp;D</translation>
    </message>
    <message id="kMenuFilterTV">
        <source></source>
        <translation>A&amp;ny TV</translation>
    </message>
    <message id="kMenuFilterUHD">
        <source></source>
        <translation>&amp;UHD</translation>
    </message>
    <message id="kMenuFind">
        <source></source>
        <translation>&amp;Find</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>Find &amp;Next</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>Find &amp;Previous</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Find…</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>Quillet &amp;Help</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>&amp;Help</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>H&amp;istory</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>Impor&amp;t Changes…</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>Station &amp;Info</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>Child &amp;Lock</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>Move &amp;Down</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>&amp;Move To…</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>Move to &amp;Bottom</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>Move to &amp;Top</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>Mo&amp;ve Up</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;New</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>&amp;Open…</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>Open &amp;Recent</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>&amp;Paste</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>Preferen&amp;ces…</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>&amp;Print…</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>Print Co&amp;mpact…</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>&amp;Radio Stations</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>Open Recovery &amp;Folder</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>&amp;Redo</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>&amp;Redo %1</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>Re&amp;load from Disk</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>R&amp;ename</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>&amp;Discard Changes</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>&amp;Try a Sample</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>&amp;Satellite</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>&amp;Save</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>Save &amp;As…</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>&amp;Select</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;All</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>&amp;Encrypted</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>&amp;Invert Selection</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>&amp;None</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>&amp;Same Type</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>S&amp;kip</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>S&amp;wap Numbers</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>&amp;Larger</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normal</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>T&amp;ext Size</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>&amp;Smaller</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>&amp;TV Stations</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>&amp;Undo</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>&amp;Undo %1</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>&amp;Unsaved Lists…</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>Earl&amp;ier Versions…</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>&amp;View</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>LG channel list</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>&amp;Move To…</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>Give the selected stations new numbers</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Move the selected station to number (1 to 9999):</numerusform>
            <numerusform>Move the selected stations to number (1 to 9999):</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Move</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>there is a file with that name already</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>the name is too long</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>the disk or the network does not answer</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>No station matches the search and the type.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>There is not enough memory for this list. Close other programs and try again.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>The list has none of the pages that were chosen.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>“%1” is not an ordinary file.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>you do not have the rights for that</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>Only files on this computer can be opened.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>There were not enough numbers: they end at %1, and %n station that shared its number could not be given a free one. Saving would keep it with a low number, as radio.</numerusform>
            <numerusform>There were not enough numbers: they end at %1, and %n stations that shared their numbers could not be given free ones. Saving would keep them with low numbers, as radio.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>No stations were found, because this looks like a binary list and not like a TLL text file.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Close this notice</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>The file is damaged at line %1, after the station “%2”.</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>The file is damaged at line %1, before the first whole station.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>The file is damaged at line %1.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>The file declares the encoding %1, but its letters are UTF-8. Quillet keeps both as they are; a television that believes the declaration shows accented letters wrongly.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>“%1” has been changed by another program. With “Keep Mine” the list stays as it is here, and the next save replaces the file.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>“%1” is no longer there: it was moved, renamed or deleted, or its disk was removed. The list is still in this window; you can save it elsewhere.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>“%1” can no longer be read. %2 The list is still in this window; you can save it elsewhere.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>No stations were found, because the JSON text that holds them could not be decoded (line %1, column %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>No stations were found, because the JSON text that holds them is incomplete.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>The file is not valid UTF-8 and was decoded as Latin-1. Saving writes UTF-8 and so changes every letter with an accent throughout the file.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>From line %1 on the file was not read: it holds more fields, attributes or nested elements there than any list of a television set.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>No stations were found, because this is a text of another kind and not a TLL file.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>This file cannot be changed: it, its folder or its disk is write-protected. To keep your changes, save a copy; “Save” offers it.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station (&lt;ITEM&gt;) that follows was not read, and saving this list would lose it.</numerusform>
            <numerusform>%n stations (&lt;ITEM&gt;) that follow were not read, and saving this list would lose them.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>What follows was not read.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>the rights of single users and groups</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>its extended attributes</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>its group</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>its other names, which still stand for the old list</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>its owner</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>some of its permissions</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>the disk does not allow that, or not that name</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>the file or its folder is not there</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Open</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>This file is open in another window. Choose another name or another folder.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>“%1” could not be opened.</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Open Repaired Copy</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Open Channel List</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>“%1” holds no order that can be applied.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>It is a whole channel list, such as an export. Give it a name that ends in .tll to take its order.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>It is a list of the kind that keeps its stations as JSON. There the identifiers are numbers, by which stations of other lists are not found.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Such lines in this file: %1. Other lines: %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>Stations are found by original network id, transport stream id and service id, and none of its stations has all three and a name.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>A text file needs at least three lines like “101;Sample TV;1-10-300”, and may have two others at most.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>It has no radio stations.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>It has no TV stations.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>An order can be taken from TLL files and from text files (.txt).</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>the system reports error %1</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>there is not enough memory</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>This is the file of the list itself, and an export never replaces it. Choose another name or another folder.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Keep a copy of the original file before you import a changed one into your television.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Exchange lists with spreadsheets, and print them</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Move stations to a number, by dragging, by typing or by keys, with or without gaps</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>Carry the order of an old set over to a new one, and compare two lists station by station</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Two lists compared station by station</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>A channel list in its window</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet sorts the channel list of an LG television on your computer. The set exports its stations to a USB stick as a TLL file; you put hundreds of stations into the order you want, and the set takes the file back.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>The first release.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Undo every step, bring back unsaved changes after a crash, put back earlier versions of a file</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>Edit lists in scripts and keep them in Git with the tool quillet-cli</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n row of the clipboard does not name a station.</numerusform>
            <numerusform>%n rows of the clipboard do not name a station.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>The file’s access permissions could not be kept: %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Columns for:</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>General</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>JSON lists</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Keep them, to bring them back after a crash</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>When this is off, a crash loses unsaved changes. What was already kept stays until its list is saved or closed.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Keep what saving replaces</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Language:</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Takes effect the next time Quillet starts.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>Same as the system</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Questions</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Only where that loses nothing. Quillet always asks before changes, stations or what others wrote to a file would be lost.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>Save JSON lists repaired without asking</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Saving</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Show Folder</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Table</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Text size:</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Preferences</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Unsaved changes</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Restore Defaults</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>Of each file, besides the first:</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Earlier versions</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>The first version of each file always stays. Above the limits the oldest go at the next save. Turning this off removes nothing. quillet‑cli goes by these settings, too.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Space for all of them:</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>In use: %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>XML lists</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>The preview has changed meanwhile; this is the new one.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n number would be given more than once.</numerusform>
            <numerusform>%n numbers would be given more than once.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n number is given more than once in the table.</numerusform>
            <numerusform>%n numbers are given more than once in the table.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n number is given more than once there.</numerusform>
            <numerusform>%n numbers are given more than once there.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>This includes %n checked row that is not shown.</numerusform>
            <numerusform>This includes %n checked rows that are not shown.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n child lock changes</numerusform>
            <numerusform>%n child locks change</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station gets another number or place</numerusform>
            <numerusform>%n stations get another number or place</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>The two lists have no station in common.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>Nothing would change.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Preview…</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Stations found: %1. Go to the end: %2. Entries that fit no station: %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n checked station moves to number %1, where “%2” is now.</numerusform>
            <numerusform>%n checked stations move to number %1, where “%2” is now.</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>Nothing can be moved: no row fits a station of the list that is shown.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>No row is checked: check the stations that are to be moved.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station is renamed</numerusform>
            <numerusform>%n stations are renamed</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Selected only: %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n skip mark changes</numerusform>
            <numerusform>%n skip marks change</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>The list is put in the order of its numbers.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station whose number is taken goes to the end: %1.</numerusform>
            <numerusform>%n stations whose numbers are taken go to the end: %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n row fits no station.</numerusform>
            <numerusform>%n rows fit no station.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n row that is uncertain or from another list is not checked.</numerusform>
            <numerusform>%n rows that are uncertain or from another list are not checked.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>only %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Radio stations, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>“%1”</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>TV stations, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>“%1” could not be printed.</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>The printer or the file could not be opened, or did not take every page.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>Print to a File</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>The list could not be printed to “%1”.</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Put Back</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>The version could not be put back.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>Its stations are not the same one to one as those in the list now, so it can only be opened.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>The list is now as it was then.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>Putting it back is one step, which can be undone; nothing is saved by it.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>your share of the disk is used up</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radio</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>The new file could not be checked. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>the disk is write-protected</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 is no longer there.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Recent lists</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Changes</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>What was kept of the changes is damaged.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>Not everything could be brought back.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Folder</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>The changes were kept by a newer version of the program.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>This is an older state of a list that has just been brought back. It is still kept: discard it, or bring it back once the other is closed.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>The list is open in a window and has changes there. Save or discard those first.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>The list as it was before the changes is at %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>The program ended before these changes were saved. They were kept and can be brought back.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Last Change</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Unsaved Lists</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>Cannot be read</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Reload</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>Do you want to read “%1” again from the disk?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>The changes you made and have not saved will be lost.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Remove from List</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>It has unsaved changes in lists that are not shown. Opening the dropped file here discards them.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>The new file could not take the place of the old one: %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>Replace the channel list “%1”?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>“%1” could not be read again. The list in this window stays as it is.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>Do you want to go back to the last saved version of “%1”?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>All changes you made since then will be lost.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Save all lists of this kind (JSON) repaired, without asking</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station would lose part of its content: %1</numerusform>
            <numerusform>%n stations would lose part of their content: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station would be in it twice: %1</numerusform>
            <numerusform>%n stations would be in it twice: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>The accented letters would be written as UTF-8, which is not the encoding that the file declares.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>An export has this one form. Your own file stays as it is.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Remarks or additional details among the stations would be lost.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>Checking that nothing is lost when “%1” is saved…</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>Saving “%1” would lose something.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station would be missing: %1</numerusform>
            <numerusform>%n stations would be missing: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>There is no way to write this file that loses less. Keep a copy of the old file before you save.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n number or repeated value of the JSON list would be written differently or lost.</numerusform>
            <numerusform>%n numbers or repeated values of the JSON list would be written differently or lost.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>The saved file could not be opened again.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station would get another number: %1</numerusform>
            <numerusform>%n stations would get another number: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>“Save Repaired” loses nothing: it writes your changes and leaves everything else as it was read.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>“Save Repaired” writes your changes and leaves everything else as it was read, but even then:</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>What the TV set keeps before or after the stations would be lost.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Everything after a damaged place in the file would be lost.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station after a damaged place in the file was never read and would be lost.</numerusform>
            <numerusform>%n stations after a damaged place in the file were never read and would be lost.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>found by its name</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>there several times</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>there in another list</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>other details</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>fits no station</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>not locked there</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>locked there</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>uncertain: similar name</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>other number</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>only here</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>only there</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>other name</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>not skipped there</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>skipped there</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>goes to the end</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>uncertain</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Sample list</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Save Anyway</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Save As…</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Save Channel List As</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>Do you want to save the changes you made to “%1”?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Your changes will be lost if you don’t save them.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Save a Copy…</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Save a Copy</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>“%1” could not be saved. The file on the disk was not changed.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>“%1” is no longer there. Do you want to save the list in another place?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>The file was moved, renamed or deleted. If it was deleted, the list in this window is the only one there is.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Save Here Anyway</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Save Repaired</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Save Channel List</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Save Without Keeping It</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Save Without %n Station</numerusform>
            <numerusform>Save Without %n Stations</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Station name</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>&amp;Search:</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Comma</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Semicolon</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Tab</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Stations matched: %1
Stations not matched: %2
These continue from number: %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>The order of “%1” was applied.</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Source</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Step by Step: From the Television and Back</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>To get one, put a USB stick into the television and look in its settings, among those for channels, for an item that copies or exports the channel list to USB. Then put the stick into this computer, make a copy of the file and open that.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>What is a TLL file?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>It is the channel list of a television: its stations and the numbers they have. The television writes it to a USB stick, here you put it in order, and then the television reads it again.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>station</numerusform>
            <numerusform>stations</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Stations</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Arrangement of %n Station</numerusform>
            <numerusform>Arrangement of %n Stations</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Filling of Gaps</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>Import of “%1”</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Lock of %n Station</numerusform>
            <numerusform>Lock of %n Stations</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Move of %n Station</numerusform>
            <numerusform>Move of %n Stations</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>Order of %1</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>Version of %1</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Renaming to “%1”</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Skip of %n Station</numerusform>
            <numerusform>Skip of %n Stations</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Swap of Numbers</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>Taking Over from “%1”</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Unlock of %n Station</numerusform>
            <numerusform>Unlock of %n Stations</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Unskip of %n Station</numerusform>
            <numerusform>Unskip of %n Stations</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Child locks</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Names</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Numbers and order</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Take over:</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Take Over All</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Take Over Selected</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Skip marks</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>The selected stations are at the bottom already</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>The selected stations are at the top already</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>This column is always shown</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>The file does not say this about any station in this list</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>The columns are the usual ones already</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>Import Changes finds the stations again by this column, whatever their order and numbers</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>Types can be chosen for TV stations only</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>The stations shown are of another source; clear the search and the type first</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>There is no file on the disk to read again</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>The file marks no station as encrypted</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>No row is selected.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Open a list, or choose a source, that has stations</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Open a file that has stations from this source</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>There is no further step in this direction</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>The clipboard names no stations</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>The list was not read from a file</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>The file does not say this about these stations</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>A version is kept each time you save over a file; there is none of this list yet</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>This page has its default settings already</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>Names can be changed in the analogue list only</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Type something into the search field first</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Select stations in the list first</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Select exactly two stations first</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>Nothing in the selected rows can be taken over.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>None of the selected rows is checked.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>There are not enough stations to arrange</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>Keeping earlier versions is turned off in the preferences</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>In the whole file: TV and radio, of every source</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station has another place now</numerusform>
            <numerusform>%n stations have another place now</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>The changes to “%1” are back, but not saved yet</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Gaps filled: %n number changed</numerusform>
            <numerusform>Gaps filled: %n numbers changed</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>Exported to %1, as the channel list it is.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>Exported to %1.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>Nothing was changed: the rows are still those of “%1”, while “%2” is chosen</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station changed by “%1”</numerusform>
            <numerusform>%n stations changed by “%1”</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station locked</numerusform>
            <numerusform>%n stations locked</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station moved to %1</numerusform>
            <numerusform>%n stations moved to %1</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station moved down</numerusform>
            <numerusform>%n stations moved down</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station moved to the bottom</numerusform>
            <numerusform>%n stations moved to the bottom</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station moved to the top</numerusform>
            <numerusform>%n stations moved to the top</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station moved up</numerusform>
            <numerusform>%n stations moved up</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>Nothing was written: a question about this list is still open</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>No station in the list has “%1” in its name</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>“%1” was saved, but the file lost: %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>The changes to “%1” would be lost in a crash, because they cannot be kept elsewhere: %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>Nothing was moved: the number must be from 1 to %1</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>Nothing taken over: the list has changed meanwhile</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>Order of “%1” applied</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Only “%1” was taken: this window holds one list. %n more file was dropped</numerusform>
            <numerusform>Only “%1” was taken: this window holds one list. %n more files were dropped</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n other number changed</numerusform>
            <numerusform>%n other numbers changed</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n other moved to the end</numerusform>
            <numerusform>%n others moved to the end</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>Nothing was moved: the stations, or the row to move them to, are no longer in the list that is shown</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>Nothing was moved: the stations are there already</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>Printed to %1.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>Version of %1 put back</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Redone: %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>“%1” was read again from the disk</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Station renamed to “%1”</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Saved repaired, as you chose: nothing was lost.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>“%1” is as it was last saved</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>This list was made up for trying things out. None of your files is changed.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>Saved to %1.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station will be skipped</numerusform>
            <numerusform>%n stations will be skipped</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>Stations %1 and %2 have swapped their numbers</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station taken over from “%1”</numerusform>
            <numerusform>%n stations taken over from “%1”</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>“%1” has not changed on the disk</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Undone: %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station unlocked</numerusform>
            <numerusform>%n stations unlocked</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n station will no longer be skipped</numerusform>
            <numerusform>%n stations will no longer be skipped</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Went to another step of the history</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>the file is larger than is allowed there</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>too many files are open</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Try a Sample</translation>
    </message>
    <message id="kTV">
        <source></source>
        <translation>&amp;TV</translation>
    </message>
    <message id="kTypeFilter">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="kUndoLink">
        <source></source>
        <translation>Undo</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>The version of “%1” that would be replaced could not be kept.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>Saving replaces it for good: it will not be among the earlier versions, which are kept in “%1”.</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>What is now in the place of “%1” cannot be read.</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>There is no telling whether another program has changed the file. If you save now, what is there will be lost.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>“%1” was written, but the disk does not confirm that it is safely stored.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>The list stays marked as changed. Save it again, or save a copy on another disk.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Untitled</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>the system tells no reason</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>The damaged file is kept as it is. Choose another name or another folder.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Usual Columns</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Compare…</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Damaged or missing; it can no longer be read</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>This version is damaged: it is not what was once kept.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>Compared with Now</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (the first)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>No channel list can be read from it</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Open</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Being compared…</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>What “%1” held before it was saved over:</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Size</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Another program has been busy keeping a version in “%1” for too long.</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>All Stations</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Earlier Versions</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>What “%1” already keeps of this file cannot be read at the moment.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Last Changed</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Unknown</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>The disk did not take the whole file: %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>“%1” is write-protected.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>match</numerusform>
            <numerusform>matches</numerusform>
        </translation>
    </message>
</context>
</TS>
