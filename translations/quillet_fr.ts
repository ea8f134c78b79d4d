<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Format de fichier non valide</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Aide de Quillet</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>Réalisé avec %1.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Copyright 2026 Les auteurs de Quillet. Logiciel libre sous licence MIT.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>Trie les listes de chaînes des téléviseurs LG.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>À propos de Quillet</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Version %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analogique</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Antenne</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>Appliquer un &amp;ordre…</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Mettre cette liste dans l’ordre d’une autre</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Choisir une liste de référence</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Classe la %n chaîne affichée parmi les numéros qu’elle occupe actuellement.</numerusform>
            <numerusform>Classe toutes les chaînes affichées (%n) parmi les numéros qu’elles occupent actuellement.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Cryptage</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Fréquence</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Réseau</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Numéro</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>ID de service</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Type (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Sens</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Décroissant</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Cryptées d’abord</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Classer par :</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>En clair d’abord</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>Toutes ces chaînes sont déjà dans cet ordre.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Rien d’autre</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Classer</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne changerait de place.</numerusform>
            <numerusform>%n chaînes changeraient de place.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Classe la %n chaîne sélectionnée parmi les numéros qu’elle occupe actuellement.</numerusform>
            <numerusform>Classe les %n chaînes sélectionnées parmi les numéros qu’elles occupent actuellement.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>&amp;Puis par :</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>P&amp;uis par :</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Classer les chaînes parmi les numéros qu’elles occupent</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Classer les chaînes</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Croissant</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>Les fichiers de ce type ne peuvent pas être utilisés</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>La section %1 ne contient pas de liste de chaînes.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>La première chaîne de la section %1 se trouve à %n caractère du début de la section ; %2 au plus sont admis.</numerusform>
            <numerusform>La première chaîne de la section %1 se trouve à %n caractères du début de la section ; %2 au plus sont admis.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Modifier quand même les numéros</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne recevrait un numéro qu’une liste de chaînes ne peut pas contenir.</numerusform>
            <numerusform>%n chaînes recevraient des numéros qu’une liste de chaînes ne peut pas contenir.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>Le numéro le plus élevé est %1. Une chaîne au-delà se retrouve avec un petit numéro tel que 0 et parfois marquée comme radio.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Récupérer</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Câble</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>« %1 » a été modifié par un autre programme.</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>Si vous enregistrez maintenant, les modifications de l’autre programme seront perdues.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Choisir un autre emplacement…</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Effacer la recherche et le type</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Effacer le menu</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Effacer la recherche</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Presse-papiers</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Fermer sans enregistrer</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Verrou</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Cryptée</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Fréquence</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Masquée</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Réseau</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>ID du réseau</translation>
    </message>
    <message id="kColumnNumber">
        <source></source>
        <translation>N°</translation>
    </message>
    <message id="kColumnNumberFull">
        <source></source>
        <translation>Numéro</translation>
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
        <translation>ID du service</translation>
    </message>
    <message id="kColumnSkipped">
        <source></source>
        <translation>Ignorer</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Flux</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>ID du flux de transport</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Type</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>Toutes les listes</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Appliquer</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>Dans le presse-papiers</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Différence</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>Il n’y a aucune différence.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>« %1 » ne contient aucune liste à comparer.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>Le disque n’a pas conservé ce qui a été écrit. Il est peut-être plein ou endommagé.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Autres indications</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Comparer avec</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>Ne correspond à rien</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Ignorer ou verrouiller</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>Liste</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Déplacer</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Autre numéro</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (tel que lu)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Nom là-bas</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1 du %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (tel qu’à %2)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>Aucune chaîne n’est d’un type coché ci-dessus tout en correspondant à la recherche.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>Rien de cela ne diffère</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>Nouveau n°</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>N° là-bas</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Seulement ici</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Seulement là-bas</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Coller</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Autre nom</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Identiques</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Chaînes comparées</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Reprendre</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>Comparaison avec « %1 »</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>Modifications de « %1 »</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>Ordre de « %1 »</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Chaînes à coller</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Va à la fin</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Incertaine</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>Le fichier est vide ou n’est pas une liste de chaînes.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>Si vous enregistrez une copie, cette fenêtre continue avec elle : « Enregistrer » écrira désormais dans la copie.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>Impossible de créer un fichier dans le dossier « %1 » : %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>Trier les listes de chaînes des téléviseurs LG</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Éditeur de listes de chaînes</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, chaîne, station, téléviseur, télévision, TV, radio, satellite, câble, trier</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Téléviseur :</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne de moins</numerusform>
            <numerusform>%n chaînes de moins</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne avec d’autres indications</numerusform>
            <numerusform>%n chaînes avec d’autres indications</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne disparue depuis</numerusform>
            <numerusform>%n chaînes disparues depuis</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne avec un autre verrouillage</numerusform>
            <numerusform>%n chaînes avec un autre verrouillage</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne de plus</numerusform>
            <numerusform>%n chaînes de plus</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne avec un autre nom</numerusform>
            <numerusform>%n chaînes avec d’autres noms</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>sans %n qui est nouvelle</numerusform>
            <numerusform>sans %n qui sont nouvelles</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne sous un autre numéro</numerusform>
            <numerusform>%n chaînes sous d’autres numéros</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>Les mêmes chaînes dans un autre ordre</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>Les mêmes chaînes dans le même ordre</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne avec une autre marque « ignorer »</numerusform>
            <numerusform>%n chaînes avec une autre marque « ignorer »</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>Abandonner</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Abandonner les modifications</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>Tout n’a pas pu être abandonné. Un autre programme utilise ces dossiers, ou rien ne peut y être supprimé :</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>Voulez-vous abandonner les modifications non enregistrées de « %1 » ?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Voulez-vous abandonner les modifications non enregistrées de %n liste ?</numerusform>
            <numerusform>Voulez-vous abandonner les modifications non enregistrées de %n listes ?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>Elles ne pourront plus être récupérées ensuite.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>Voulez-vous abandonner des modifications non enregistrées qui sont illisibles ?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>le disque signale une erreur ; il est peut-être endommagé</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>il n’y a plus de place sur le disque</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>le disque a été retiré</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>UTF-8 avec marque (pour les tableurs)</translation>
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
        <translation>Windows-1252 (Europe occidentale)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>La seule chaîne de cette liste</numerusform>
            <numerusform>Les %n chaînes de cette liste</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne n’a pas d’identifiants complets et n’est reconnue que par son nom.</numerusform>
            <numerusform>%n chaînes n’ont pas d’identifiants complets et ne sont reconnues que par leur nom.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Dans %n nom, des virgules et des espaces remplacent les points-virgules et les sauts de ligne ; ce nom ne permet plus de reconnaître la chaîne.</numerusform>
            <numerusform>Dans %n noms, des virgules et des espaces remplacent les points-virgules et les sauts de ligne ; ces noms ne permettent plus de reconnaître les chaînes.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>&amp;Encodage :</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>Une copie de toute la liste de chaînes est écrite sous le nom que vous choisissez. Le fichier de cette fenêtre reste tel quel. L’ordre de la copie peut être appliqué à d’autres listes si son nom se termine par « .tll ».</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>Impossible d’exporter la liste sous le nom « %1 ».</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Format :</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>Avec les c&amp;lés des chaînes, pour importer des modifications</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Exporter la liste</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n caractère n’existe pas dans cet encodage ; « ? » le remplace.</numerusform>
            <numerusform>%n caractères n’existent pas dans cet encodage ; « ? » les remplace.</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne a des nombres comme identifiants : les listes dont les identifiants sont du texte la reconnaissent ainsi, cette liste par son nom seulement.</numerusform>
            <numerusform>%n chaînes ont des nombres comme identifiants : les listes dont les identifiants sont du texte les reconnaissent ainsi, cette liste par leur nom seulement.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Exporter…</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Page à imprimer (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Liste de référence pour appliquer un ordre (texte)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne renommée n’a pas d’identifiants complets : elle n’est reconnue qu’une fois la liste enregistrée et rouverte.</numerusform>
            <numerusform>%n chaînes renommées n’ont pas d’identifiants complets : elles ne sont reconnues qu’une fois la liste enregistrée et rouverte.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>Sé&amp;parateur :</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Seulement celle qui est affichée</numerusform>
            <numerusform>Seulement les %n qui sont affichées</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Chaînes :</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Tableau pour tableurs (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Exporter comme liste de référence (copie du fichier entier)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>Un ordre se lit à partir de trois chaînes au moins : ce fichier ne pourrait pas être appliqué.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>« %1 » ne dit pas si la chaîne porte cette marque ; 1 ou 0 conviendrait.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>« %1 » n’est pas un numéro de 1 à 16383.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Ligne %1, colonne %2 « %3 » :</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>Il y a deux colonnes « %1 ».</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>La première ligne doit porter les titres des colonnes tels qu’ils ont été exportés, dont « Nom », « Service » ou « stationKey ».</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>Il n’y a aucune ligne de chaînes.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Ligne %1, caractère %2 :</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>Du texte suit un guillemet fermant.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>Le tableau est trop grand.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>« %1 » n’est dans aucune colonne titrée.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>Un guillemet s’ouvre ici et ne se ferme jamais.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>Ce n’est pas un fichier texte.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>Aucun fichier ne se trouve à l’emplacement « %1 ».</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>Fichier</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>Le fichier est beaucoup trop volumineux pour une liste de chaînes.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>Impossible de lire le fichier : %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>Com&amp;bler les vides</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>Numéroter la liste 1, 2, 3… sans vides, maintenant et après chaque déplacement</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>Tous les types</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>Tous les fichiers</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Listes de chaînes</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Autres</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>Pages HTML</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Listes de référence</translation>
    </message>
    <message id="kFilterSD">
        <source></source>
        <translation>SD</translation>
    </message>
    <message id="kFilterTables">
        <source></source>
        <translation>Tableaux</translation>
    </message>
    <message id="kFilterTextFiles">
        <source></source>
        <translation>Fichiers texte</translation>
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
        <translation>Le dossier « %1 » n’est plus là.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>Il a été déplacé ou supprimé, ou son disque a été retiré. Rien n’a été enregistré et rien n’est perdu : la liste est toujours dans cette fenêtre, avec toutes ses modifications.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>un dossier se trouve à cet endroit</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>Aucun programme n’a pu être lancé pour afficher le dossier « %1 ».</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>Ces chaînes viennent de « %1 ». Effacez la recherche et le type pour voir « %2 ».</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>« %1 » n’est plus là.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>Le fichier a été déplacé ou supprimé, ou le disque qui le contenait a été retiré. Enregistrer ici crée un nouveau fichier à cet endroit ; si vous le voulez sur une clé, branchez-la d’abord.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Précédent</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Rechercher</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Fermer la barre de recherche</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Résultat %1 sur %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Rechercher dans cette page</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Résultat suivant</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>Introuvable dans cette page</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Résultat précédent</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Rechercher un mot dans cette page</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>Suivant</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Page d’accueil</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Ouvrir dans le navigateur</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>Ouvrir dans Chrome</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Navigation</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>Aucune liste de chaînes ouverte</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Déposez un fichier TLL de votre téléviseur dans cette fenêtre ou choisissez-en un.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>Aucune station de radio pour ce mode de réception</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>Aucune chaîne</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>Ce fichier ne contient aucune chaîne. Vous pouvez déposer ici un autre fichier TLL.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>Aucune chaîne TV pour ce mode de réception</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Ouvrir un fichier…</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Les stations de radio de ce type de liste ne sont pas affichées</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Celles qu’elle contient restent dans le fichier.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>Afficher ses stations de radio</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>Afficher ses chaînes TV</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Actuelle</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Plus ancienne étape conservée</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (enregistrée)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>Liste à l’ouverture</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>Historique</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Annulée</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>Le tableau n’a pas de colonne « stationKey » : des chaînes sont reconnues par leur nom seul.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Les numéros et l’ordre des lignes ont changé et ne s’accordent pas : les numéros comptent.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>Les numéros n’ont pas changé mais les lignes sont dans un autre ordre : les chaînes prennent l’ordre des lignes.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>Impossible d’importer « %1 ». La liste reste telle quelle.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>Les lignes correspondent à une autre liste de ce fichier : %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>Le tableau n’indique pas de numéros : les chaînes prennent l’ordre des lignes.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Importer des modifications d’un tableau</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ligne n’est pas claire : sa clé et son nom ne concordent pas, ou la chaîne y figure encore.</numerusform>
            <numerusform>%n lignes ne sont pas claires : la clé et le nom ne concordent pas, ou une chaîne y figure plusieurs fois.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Colonnes non lues : %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ligne du tableau ne désigne aucune chaîne.</numerusform>
            <numerusform>%n lignes du tableau ne désignent aucune chaîne.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Informations…</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>Contenu</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Champ</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Champs de la chaîne</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Afficher tous les champs de la chaîne sélectionnée</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>un autre programme l’utilise</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>« %1 » est un dossier.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Garder la mienne</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>Français</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Plus tard</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>Le lien vers le fichier renvoie à lui-même.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>Impossible d’ouvrir la liste de chaînes.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Rien ne peut être repris ici</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1 : non coché</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1 : coché</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n « &amp; » isolé a été corrigé.</numerusform>
            <numerusform>%n « &amp; » isolés ont été corrigés.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n « &lt; » isolé a été corrigé.</numerusform>
            <numerusform>%n « &lt; » isolés ont été corrigés.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n caractère de contrôle a été supprimé.</numerusform>
            <numerusform>%n caractères de contrôle ont été supprimés.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>La dernière chaîne était tronquée ; ce qui en est intact a été conservé.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>La dernière chaîne était tronquée et a dû être omise.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>La fin du fichier manquait et a été ajoutée.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n morceau de texte hors de la liste a été supprimé.</numerusform>
            <numerusform>%n morceaux de texte hors de la liste ont été supprimés.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n balise manquante ou incorrecte a été corrigée.</numerusform>
            <numerusform>%n balises manquantes ou incorrectes ont été corrigées.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>Ceci est une copie réparée de « %1 ». Le fichier lui-même reste tel quel.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>À &amp;propos de Quillet</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>Enregistrer les listes &amp;JSON réparées</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;logique</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Antenne</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>Appli&amp;quer un ordre…</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>C&amp;lasser…</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Câble</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>&amp;Fermer</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>Colo&amp;nnes</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Co&amp;mparer avec</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>Autre &amp;liste…</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>Fichier tel qu’il a été l&amp;u</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>&amp;Copier</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>É&amp;dition</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>E&amp;xporter comme liste de référence…</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>Ex&amp;porter…</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;Fichier</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>Com&amp;bler les vides</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>Tous les t&amp;ypes</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>Autr&amp;es</translation>
    </message>
    <message id="kMenuFilterSD">
        <source></source>
        <translation>S&amp;D</translation>
    </message>
    <message id="kMenuFilterTV">
        <source></source>
        <translation>Toute la T&amp;V</translation>
    </message>
    <message id="kMenuFilterUHD">
        <source></source>
        <translation>&amp;UHD</translation>
    </message>
    <message id="kMenuFind">
        <source></source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>Rechercher la &amp;suivante</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>Rechercher la &amp;précédente</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Rechercher…</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>&amp;Aide de Quillet</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>Aid&amp;e</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>H&amp;istorique</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>Impor&amp;ter des modifications…</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>I&amp;nformations sur la chaîne</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>&amp;Verrouillage parental</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>&amp;Descendre</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>Dé&amp;placer vers…</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>Déplacer to&amp;ut en bas</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>Déplacer tout en &amp;haut</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>&amp;Monter</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>C&amp;oller</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>Pré&amp;férences…</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>Imprimer en a&amp;brégé…</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>&amp;Quitter</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>Stations de &amp;radio</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>Ouvrir le &amp;dossier de récupération</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>Ré&amp;tablir : %1</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>Re&amp;charger depuis le disque</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>R&amp;enommer</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>&amp;Abandonner les modifications</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>&amp;Essayer un exemple</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>&amp;Satellite</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>&amp;Sélectionner</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;Toutes</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>&amp;Cryptées</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>&amp;Inverser la sélection</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>&amp;Aucune</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>&amp;Même type</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>Échan&amp;ger les numéros</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>Plus &amp;grande</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normale</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>Taille du te&amp;xte</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>Plus &amp;petite</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>Chaînes &amp;TV</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>&amp;Annuler</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>&amp;Listes non enregistrées…</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>&amp;Versions antérieures…</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>&amp;Affichage</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>liste de chaînes LG</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>Dé&amp;placer vers…</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>Donner de nouveaux numéros aux chaînes sélectionnées</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Déplacer la chaîne sélectionnée vers le numéro (1 à 9999) :</numerusform>
            <numerusform>Déplacer les chaînes sélectionnées vers le numéro (1 à 9999) :</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Déplacer</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>un fichier de ce nom existe déjà</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>le nom est trop long</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>le disque ou le réseau ne répond pas</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>Aucune chaîne ne correspond à la recherche et au type.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>Il n’y a pas assez de mémoire pour cette liste. Fermez d’autres programmes et réessayez.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>La liste ne contient aucune des pages choisies.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>« %1 » n’est pas un fichier ordinaire.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>vous n’en avez pas le droit</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>Seuls les fichiers de cet ordinateur peuvent être ouverts.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Les numéros ne suffisent pas : ils s’arrêtent à %1, et %n chaîne au numéro déjà pris n’a pas pu en recevoir un libre. L’enregistrement lui laisserait un petit numéro, comme radio.</numerusform>
            <numerusform>Les numéros ne suffisent pas : ils s’arrêtent à %1, et %n chaînes aux numéros déjà pris n’ont pas pu en recevoir de libres. L’enregistrement leur laisserait de petits numéros, comme radios.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>Aucune chaîne n’a été trouvée : ceci ressemble à une liste binaire et non à un fichier texte TLL.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Fermer cet avis</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>Le fichier est endommagé à la ligne %1, après la chaîne « %2 ».</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>Le fichier est endommagé à la ligne %1, avant la première chaîne complète.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>Le fichier est endommagé à la ligne %1.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>Le fichier déclare l’encodage %1, mais ses lettres sont en UTF-8. Quillet garde les deux tels quels ; un téléviseur qui se fie à la déclaration affiche mal les lettres accentuées.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>« %1 » a été modifié par un autre programme. Avec « Garder la mienne », la liste reste telle qu’elle est ici et le prochain enregistrement remplace le fichier.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>« %1 » n’est plus là : le fichier a été déplacé, renommé ou supprimé, ou son disque a été retiré. La liste est toujours dans cette fenêtre ; vous pouvez l’enregistrer ailleurs.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>« %1 » ne peut plus être lu. %2 La liste est toujours dans cette fenêtre ; vous pouvez l’enregistrer ailleurs.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>Aucune chaîne n’a été trouvée, car le texte JSON qui les contient n’a pas pu être décodé (ligne %1, colonne %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>Aucune chaîne n’a été trouvée, car le texte JSON qui les contient n’est pas complet.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>Le fichier n’est pas de l’UTF-8 valide et a été décodé en Latin-1. L’enregistrement écrit en UTF-8 et modifie donc chaque lettre accentuée dans tout le fichier.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>Le fichier n’a pas été lu à partir de la ligne %1 : il y contient plus de champs, d’attributs ou d’éléments imbriqués que toute liste d’un téléviseur.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>Aucune chaîne n’a été trouvée, car ceci est un autre type de texte et non un fichier TLL.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>Ce fichier ne peut pas être modifié : le fichier, son dossier ou son disque est protégé en écriture. Pour garder vos modifications, enregistrez une copie ; « Enregistrer » le propose.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne (&lt;ITEM&gt;) qui suit n’a pas été lue et serait perdue si vous enregistriez cette liste.</numerusform>
            <numerusform>%n chaînes (&lt;ITEM&gt;) qui suivent n’ont pas été lues et seraient perdues si vous enregistriez cette liste.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>La suite n’a pas été lue.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>les droits de certains utilisateurs et groupes</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>ses attributs étendus</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>son groupe</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>ses autres noms, qui désignent encore l’ancienne liste</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>son propriétaire</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>certains de ses droits d’accès</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>le disque ne le permet pas, ou n’admet pas ce nom</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>le fichier ou son dossier n’est pas là</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Ouvrir</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>Ce fichier est ouvert dans une autre fenêtre. Choisissez un autre nom ou un autre dossier.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>Impossible d’ouvrir « %1 ».</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Ouvrir une copie réparée</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Ouvrir une liste de chaînes</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>« %1 » ne contient aucun ordre qui puisse être appliqué.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>C’est une liste de chaînes complète, une exportation par exemple. Donnez-lui un nom terminé par .tll pour reprendre son ordre.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>C’est une liste du type qui conserve ses chaînes en JSON. Les identifiants y sont des nombres, qui ne permettent pas de retrouver les chaînes d’autres listes.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Lignes de cette forme dans ce fichier : %1. Autres lignes : %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>Les chaînes sont retrouvées par leurs identifiants de réseau d’origine, de flux de transport et de service, et aucune des siennes n’a les trois ainsi qu’un nom.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>Un fichier texte doit avoir au moins trois lignes de la forme « 101;Sample TV;1-10-300 » et au plus deux autres.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>Il ne contient aucune station de radio.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>Il ne contient aucune chaîne TV.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>Un ordre peut être repris de fichiers TLL et de fichiers texte (.txt).</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>le système signale l’erreur %1</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>il n’y a pas assez de mémoire</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>C’est le fichier de la liste elle-même, qu’une exportation ne remplace jamais. Choisissez un autre nom ou un autre dossier.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Conservez une copie du fichier d’origine avant d’importer un fichier modifié dans votre téléviseur.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Échanger des listes avec des tableurs et les imprimer</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Déplacer des chaînes vers un numéro, par glisser-déposer, par saisie ou au clavier, avec ou sans vides</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>Reprendre l’ordre d’un ancien téléviseur sur un nouveau et comparer deux listes chaîne par chaîne</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Deux listes comparées chaîne par chaîne</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>Une liste de chaînes dans sa fenêtre</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet trie la liste de chaînes d’un téléviseur LG sur votre ordinateur. Le téléviseur exporte ses chaînes sur une clé USB sous forme de fichier TLL ; vous mettez des centaines de chaînes dans l’ordre voulu, puis le téléviseur relit le fichier.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>La première version.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Annuler chaque étape, récupérer après un plantage les modifications non enregistrées, rétablir des versions antérieures d’un fichier</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>Modifier des listes par des scripts et les suivre dans Git avec l’outil quillet-cli</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ligne du presse-papiers ne désigne aucune chaîne.</numerusform>
            <numerusform>%n lignes du presse-papiers ne désignent aucune chaîne.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>Impossible de conserver les droits d’accès du fichier : %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Colonnes pour :</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>Général</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>Listes JSON</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Les conserver pour les récupérer après un plantage</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>Sans cela, un plantage fait perdre les modifications non enregistrées. Ce qui est déjà conservé le reste jusqu’à l’enregistrement ou la fermeture de la liste.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Conserver ce que l’enregistrement remplace</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Langue :</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Prend effet au prochain démarrage de Quillet.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>Celle du système</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Questions</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Seulement si rien n’est perdu. Quillet demande toujours avant que des modifications, des chaînes ou ce que d’autres ont écrit dans un fichier ne soient perdus.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>Enregistrer les listes JSON réparées sans demander</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Enregistrement</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Afficher le dossier</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Tableau</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Taille du texte :</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Préférences</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>Par fichier, en plus de la première :</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Versions antérieures</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>La première version de chaque fichier reste toujours. Au-delà des limites, les plus anciennes disparaissent au prochain enregistrement. Désactiver l’option ne supprime rien. quillet‑cli suit aussi ces réglages.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Espace pour toutes :</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>Espace utilisé : %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>Listes XML</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>L’aperçu a changé entre-temps ; voici le nouveau.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numéro serait donné plusieurs fois.</numerusform>
            <numerusform>%n numéros seraient donnés plusieurs fois.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numéro est donné plusieurs fois dans le tableau.</numerusform>
            <numerusform>%n numéros sont donnés plusieurs fois dans le tableau.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numéro y est donné plusieurs fois.</numerusform>
            <numerusform>%n numéros y sont donnés plusieurs fois.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Cela comprend %n ligne cochée qui n’est pas affichée.</numerusform>
            <numerusform>Cela comprend %n lignes cochées qui ne sont pas affichées.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n verrouillage change</numerusform>
            <numerusform>%n verrouillages changent</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne reçoit un autre numéro ou une autre place</numerusform>
            <numerusform>%n chaînes reçoivent un autre numéro ou une autre place</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>Les deux listes n’ont aucune chaîne en commun.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>Rien ne changerait.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Aperçu…</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Chaînes trouvées : %1. Vont à la fin : %2. Entrées sans chaîne : %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne cochée va au numéro %1, où se trouve « %2 ».</numerusform>
            <numerusform>%n chaînes cochées vont au numéro %1, où se trouve « %2 ».</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>Rien ne peut être déplacé : aucune ligne ne correspond à une chaîne de la liste affichée.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>Aucune ligne n’est cochée : cochez les chaînes à déplacer.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne est renommée</numerusform>
            <numerusform>%n chaînes sont renommées</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Sélection seule : %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n marque « ignorer » change</numerusform>
            <numerusform>%n marques « ignorer » changent</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>La liste est mise dans l’ordre de ses numéros.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne dont le numéro est pris va à la fin : %1.</numerusform>
            <numerusform>%n chaînes dont les numéros sont pris vont à la fin : %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ligne ne correspond à aucune chaîne.</numerusform>
            <numerusform>%n lignes ne correspondent à aucune chaîne.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n ligne incertaine ou d’une autre liste n’est pas cochée.</numerusform>
            <numerusform>%n lignes incertaines ou d’une autre liste ne sont pas cochées.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>seulement %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Stations de radio, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>« %1 »</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>Chaînes TV, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>« %1 » n’a pas pu être imprimé.</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>L’imprimante ou le fichier n’a pas pu être ouvert, ou n’a pas accepté toutes les pages.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>La liste n’a pas pu être imprimée dans « %1 ».</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Restaurer</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>La version n’a pas pu être restaurée.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>Ses chaînes ne sont pas exactement celles de la liste actuelle ; elle peut seulement être ouverte.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>La liste est maintenant telle qu’elle était alors.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>La restaurer est une seule étape, qui peut être annulée ; rien n’est enregistré.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>votre quota d’espace disque est épuisé</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radio</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>Impossible de vérifier le nouveau fichier. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>le disque est protégé en écriture</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 n’existe plus.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Listes récentes</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Modifications</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>Ce qui a été conservé des modifications est endommagé.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>Tout n’a pas pu être récupéré.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Dossier</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>Les modifications ont été conservées par une version plus récente du programme.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>C’est un état plus ancien d’une liste qui vient d’être récupérée. Il reste conservé : abandonnez-le, ou récupérez-le une fois l’autre fermée.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>La liste est ouverte dans une fenêtre et y a été modifiée. Enregistrez ou abandonnez d’abord ces modifications.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>La liste d’avant les modifications se trouve ici : %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>Le programme s’est arrêté avant que ces modifications soient enregistrées. Elles ont été conservées et peuvent être récupérées.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Dernière modification</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Listes non enregistrées</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>Illisible</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Recharger</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>Voulez-vous relire « %1 » depuis le disque ?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>Les modifications que vous n’avez pas enregistrées seront perdues.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Retirer de la liste</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>Elle contient des modifications non enregistrées dans des listes qui ne sont pas affichées. Si vous ouvrez ici le fichier déposé, elles seront perdues.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>Le nouveau fichier n’a pas pu remplacer l’ancien : %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>Remplacer la liste de chaînes « %1 » ?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>Impossible de relire « %1 ». La liste de cette fenêtre reste telle quelle.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>Voulez-vous revenir à la dernière version enregistrée de « %1 » ?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>Toutes les modifications faites depuis seront perdues.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Enregistrer toutes les listes de ce type (JSON) réparées, sans demander</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne perdrait une partie de ses données : %1</numerusform>
            <numerusform>%n chaînes perdraient une partie de leurs données : %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne y figurerait deux fois : %1</numerusform>
            <numerusform>%n chaînes y figureraient deux fois : %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>Les lettres accentuées seraient écrites en UTF-8, qui n’est pas l’encodage déclaré par le fichier.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>Une exportation n’a que cette forme. Votre propre fichier reste tel quel.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Des remarques ou des détails supplémentaires entre les chaînes seraient perdus.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>Vérification que l’enregistrement de « %1 » ne fait rien perdre…</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>L’enregistrement de « %1 » ferait perdre des données.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne manquerait : %1</numerusform>
            <numerusform>%n chaînes manqueraient : %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>Il n’existe aucun moyen d’écrire ce fichier avec moins de pertes. Conservez une copie de l’ancien fichier avant d’enregistrer.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n nombre ou valeur répétée de la liste JSON serait écrit autrement ou perdu.</numerusform>
            <numerusform>%n nombres ou valeurs répétées de la liste JSON seraient écrits autrement ou perdus.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>Le fichier enregistré ne pourrait plus être ouvert.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne recevrait un autre numéro : %1</numerusform>
            <numerusform>%n chaînes recevraient un autre numéro : %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>« Enregistrer la version réparée » ne perd rien : vos modifications sont écrites, tout le reste demeure tel qu’il a été lu.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>« Enregistrer la version réparée » écrit vos modifications et laisse tout le reste tel qu’il a été lu, mais même ainsi :</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>Ce que le téléviseur conserve avant ou après les chaînes serait perdu.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Tout ce qui suit un endroit endommagé du fichier serait perdu.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne située après un endroit endommagé du fichier n’a jamais été lue et serait perdue.</numerusform>
            <numerusform>%n chaînes situées après un endroit endommagé du fichier n’ont jamais été lues et seraient perdues.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>trouvée par son nom</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>y figure plusieurs fois</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>là-bas dans une autre liste</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>autres indications</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>ne correspond à aucune chaîne</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>non verrouillée là-bas</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>verrouillée là-bas</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>incertaine : nom semblable</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>autre numéro</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>seulement ici</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>seulement là-bas</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>autre nom</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>non ignorée là-bas</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>ignorée là-bas</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>va à la fin</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>incertaine</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Liste d’exemple</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Satellite</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Enregistrer quand même</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Enregistrer la liste de chaînes sous</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>Voulez-vous enregistrer les modifications apportées à « %1 » ?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Vos modifications seront perdues si vous ne les enregistrez pas.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Enregistrer une copie…</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>Impossible d’enregistrer « %1 ». Le fichier sur le disque n’a pas été modifié.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>« %1 » n’est plus là. Voulez-vous enregistrer la liste à un autre endroit ?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>Le fichier a été déplacé, renommé ou supprimé. S’il a été supprimé, la liste n’existe plus que dans cette fenêtre.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Enregistrer ici quand même</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Enregistrer la version réparée</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Enregistrer la liste de chaînes</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Enregistrer sans la conserver</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Enregistrer sans %n chaîne</numerusform>
            <numerusform>Enregistrer sans %n chaînes</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Nom de la chaîne</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>Re&amp;chercher :</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Virgule</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Point-virgule</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Tabulation</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Chaînes trouvées : %1
Chaînes non trouvées : %2
Ces dernières suivent à partir du numéro : %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>L’ordre de « %1 » a été appliqué.</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Mode de réception</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Pas à pas : du téléviseur et retour</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>Pour en obtenir un, branchez une clé USB sur le téléviseur et cherchez dans ses réglages, parmi ceux des chaînes, une option qui copie ou exporte la liste des chaînes vers l’USB. Branchez ensuite la clé sur cet ordinateur, faites une copie du fichier et ouvrez-la.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>Qu’est-ce qu’un fichier TLL ?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>C’est la liste des chaînes d’un téléviseur : ses chaînes et leurs numéros. Le téléviseur l’écrit sur une clé USB, vous la mettez ici en ordre, puis le téléviseur la relit.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>chaîne</numerusform>
            <numerusform>chaînes</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Chaînes</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Classement de %n chaîne</numerusform>
            <numerusform>Classement de %n chaînes</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Comblement des vides</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>Importation de « %1 »</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Verrouillage de %n chaîne</numerusform>
            <numerusform>Verrouillage de %n chaînes</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Déplacement de %n chaîne</numerusform>
            <numerusform>Déplacement de %n chaînes</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>Ordre de %1</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>Version du %1</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Renommage en « %1 »</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>« Ignorer » pour %n chaîne</numerusform>
            <numerusform>« Ignorer » pour %n chaînes</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Échange des numéros</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>Reprise de « %1 »</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Déverrouillage de %n chaîne</numerusform>
            <numerusform>Déverrouillage de %n chaînes</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>« Ne plus ignorer » pour %n chaîne</numerusform>
            <numerusform>« Ne plus ignorer » pour %n chaînes</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Verrouillages</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Noms</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Numéros et ordre</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Reprendre :</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Tout reprendre</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Reprendre la sélection</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Marques « ignorer »</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>Les chaînes sélectionnées sont déjà tout en bas</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>Les chaînes sélectionnées sont déjà tout en haut</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>Cette colonne est toujours affichée</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>Le fichier ne l’indique pour aucune chaîne de cette liste</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>Ce sont déjà les colonnes habituelles</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>Cette colonne permet de reconnaître les chaînes à l’importation, quels que soient leur ordre et leurs numéros</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>Les types ne peuvent être choisis que pour les chaînes TV</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>Les chaînes affichées viennent d’un autre mode de réception ; effacez d’abord la recherche et le type</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>Il n’y a pas de fichier à relire sur le disque</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>Le fichier n’indique aucune chaîne cryptée</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>Aucune ligne n’est sélectionnée.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Ouvrez une liste, ou choisissez un mode de réception, qui contient des chaînes</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Ouvrez un fichier qui contient des chaînes de ce mode de réception</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>Il n’y a pas d’autre étape dans ce sens</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>Le presse-papiers ne contient aucune ligne qui désigne des chaînes</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>La liste n’a pas été lue dans un fichier</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>Le fichier n’indique pas cette information pour ces chaînes</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>Une version est conservée à chaque enregistrement par-dessus un fichier ; il n’y en a pas encore de cette liste</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>Cette page a déjà ses valeurs par défaut</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>Les noms ne peuvent être modifiés que dans la liste analogique</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Saisissez d’abord quelque chose dans le champ de recherche</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Sélectionnez d’abord des chaînes dans la liste</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Sélectionnez d’abord exactement deux chaînes</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>Rien des lignes sélectionnées ne peut être repris.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>Aucune des lignes sélectionnées n’est cochée.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>Il n’y a pas assez de chaînes à classer</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>La conservation des versions antérieures est désactivée dans les préférences</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>Dans tout le fichier : TV et radio, de tous les modes de réception</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne a maintenant une autre place</numerusform>
            <numerusform>%n chaînes ont maintenant une autre place</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>Les modifications de « %1 » sont de retour, mais pas encore enregistrées</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Vides comblés : %n numéro modifié</numerusform>
            <numerusform>Vides comblés : %n numéros modifiés</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>Exporté vers %1, en tant que liste de chaînes complète.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>Exporté vers %1.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>Rien n’a été modifié : les lignes sont encore celles de « %1 », alors que « %2 » est choisi</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne modifiée d’après « %1 »</numerusform>
            <numerusform>%n chaînes modifiées d’après « %1 »</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne verrouillée</numerusform>
            <numerusform>%n chaînes verrouillées</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne déplacée vers %1</numerusform>
            <numerusform>%n chaînes déplacées vers %1</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne déplacée vers le bas</numerusform>
            <numerusform>%n chaînes déplacées vers le bas</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne déplacée tout en bas</numerusform>
            <numerusform>%n chaînes déplacées tout en bas</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne déplacée tout en haut</numerusform>
            <numerusform>%n chaînes déplacées tout en haut</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne déplacée vers le haut</numerusform>
            <numerusform>%n chaînes déplacées vers le haut</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>Rien n’a été écrit : une question sur cette liste est encore ouverte</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>Aucune chaîne de la liste ne contient « %1 » dans son nom</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>« %1 » a été enregistré, mais le fichier a perdu : %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>Les modifications de « %1 » seraient perdues en cas de plantage, car elles ne peuvent pas être conservées à part : %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>Rien n’a été déplacé : le numéro doit être compris entre 1 et %1</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>Rien n’a été repris : la liste a changé entre-temps</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>Ordre de « %1 » appliqué</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Seul « %1 » a été pris : cette fenêtre contient une seule liste. %n autre fichier a été déposé</numerusform>
            <numerusform>Seul « %1 » a été pris : cette fenêtre contient une seule liste. %n autres fichiers ont été déposés</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n autre numéro modifié</numerusform>
            <numerusform>%n autres numéros modifiés</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n autre mise à la fin</numerusform>
            <numerusform>%n autres mises à la fin</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>Rien n’a été déplacé : les chaînes, ou la ligne où les placer, ne sont plus dans la liste affichée</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>Rien n’a été déplacé : les chaînes s’y trouvent déjà</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>Imprimé dans %1.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>Version du %1 restaurée</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Rétabli : %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>« %1 » a été relu depuis le disque</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Chaîne renommée en « %1 »</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Version réparée enregistrée, selon votre choix : rien n’a été perdu.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>« %1 » est revenu au dernier enregistrement</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>Cette liste a été inventée pour faire des essais. Aucun de vos fichiers n’est modifié.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>Enregistré dans %1.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne sera ignorée</numerusform>
            <numerusform>%n chaînes seront ignorées</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>Les chaînes %1 et %2 ont échangé leurs numéros</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne reprise de « %1 »</numerusform>
            <numerusform>%n chaînes reprises de « %1 »</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>« %1 » n’a pas changé sur le disque</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Annulé : %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne déverrouillée</numerusform>
            <numerusform>%n chaînes déverrouillées</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n chaîne ne sera plus ignorée</numerusform>
            <numerusform>%n chaînes ne seront plus ignorées</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Passage à une autre étape de l’historique</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>le fichier dépasse la taille permise à cet endroit</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>trop de fichiers sont ouverts</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Essayer un exemple</translation>
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
        <translation>Annuler</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>La version de « %1 » qui serait remplacée n’a pas pu être conservée.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>L’enregistrement la remplace définitivement : elle ne sera pas parmi les versions antérieures, conservées dans « %1 ».</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>Ce qui se trouve maintenant à la place de « %1 » ne peut pas être lu.</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>Impossible de savoir si un autre programme a modifié le fichier. Si vous enregistrez maintenant, ce qui s’y trouve sera perdu.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>« %1 » a été écrit, mais le disque ne confirme pas que le fichier est bien enregistré.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>La liste reste marquée comme modifiée. Enregistrez-la à nouveau, ou enregistrez une copie sur un autre disque.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Sans titre</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>le système n’indique pas de raison</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>Le fichier endommagé est conservé tel quel. Choisissez un autre nom ou un autre dossier.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Colonnes habituelles</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Comparer…</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Endommagée ou disparue ; elle ne peut plus être lue</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>Cette version est endommagée : elle n’est plus ce qui a été conservé.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>Par rapport à maintenant</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (la première)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>Aucune liste de chaînes ne peut y être lue</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Ouvrir</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Comparaison en cours…</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>Ce que contenait « %1 » avant d’être remplacé :</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Taille</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Un autre programme est occupé depuis trop longtemps à conserver une version dans « %1 ».</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>Toutes les chaînes</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Versions antérieures</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>Ce qui est déjà conservé de ce fichier dans « %1 » ne peut pas être lu pour le moment.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Dernière modification</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Inconnue</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>Le disque n’a pas pu recevoir tout le fichier : %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>« %1 » est protégé en écriture.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>résultat</numerusform>
            <numerusform>résultats</numerusform>
        </translation>
    </message>
</context>
</TS>
