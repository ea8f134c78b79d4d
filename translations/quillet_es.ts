<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Formato de archivo no válido</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Ayuda de Quillet</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>Creado con %1.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Copyright 2026 Los autores de Quillet. Software libre bajo la licencia MIT.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>Ordena las listas de canales de los televisores LG.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>Acerca de Quillet</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Versión %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analógico</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Antena</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>Aplicar &amp;orden…</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Poner esta lista en el orden de otra</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Elegir una lista de referencia</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordena el %n canal mostrado entre los números que ocupa ahora.</numerusform>
            <numerusform>Ordena todos los canales mostrados (%n) entre los números que ocupan ahora.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Codificación</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Frecuencia</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Número</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Satélite</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>ID de servicio</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Tipo (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Sentido</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Descendente</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Codificados primero</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Ordenar por:</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>Libres primero</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>Todos estos canales ya están en este orden.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Nada más</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Ordenar</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal cambiaría de lugar.</numerusform>
            <numerusform>%n canales cambiarían de lugar.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordena el %n canal seleccionado entre los números que ocupa ahora.</numerusform>
            <numerusform>Ordena los %n canales seleccionados entre los números que ocupan ahora.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>&amp;Después por:</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>De&amp;spués por:</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Ordenar los canales entre los números que ocupan</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Ordenar canales</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Ascendente</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>No se pueden usar archivos de este tipo</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>La sección %1 no contiene una lista de canales.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>El primer canal de la sección %1 está a %n carácter del principio de la sección; se admiten %2 como máximo.</numerusform>
            <numerusform>El primer canal de la sección %1 está a %n caracteres del principio de la sección; se admiten %2 como máximo.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Cambiar los números de todos modos</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal recibiría un número que una lista de canales no puede contener.</numerusform>
            <numerusform>%n canales recibirían números que una lista de canales no puede contener.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>El número más alto es %1. Un canal por encima acaba con un número bajo, como 0, y quizá marcado como radio.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Recuperar</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Cable</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>Otro programa ha modificado «%1».</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>Si guarda ahora, se perderán los cambios hechos por el otro programa.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Elegir otro lugar…</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Borrar búsqueda y tipo</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Vaciar menú</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Portapapeles</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Cerrar sin guardar</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Bloqueo</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Codificado</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Frecuencia</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Oculto</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>ID de red</translation>
    </message>
    <message id="kColumnNumber">
        <source></source>
        <translation>N.º</translation>
    </message>
    <message id="kColumnNumberFull">
        <source></source>
        <translation>Número</translation>
    </message>
    <message id="kColumnSatellite">
        <source></source>
        <translation>Satélite</translation>
    </message>
    <message id="kColumnServiceId">
        <source></source>
        <translation>Servicio</translation>
    </message>
    <message id="kColumnServiceIdFull">
        <source></source>
        <translation>ID de servicio</translation>
    </message>
    <message id="kColumnSkipped">
        <source></source>
        <translation>Omitir</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Flujo</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>ID del flujo de transporte</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Tipo</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>Todas las listas</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Aplicar</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>En el portapapeles</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Diferencia</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>No hay diferencias.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>«%1» no contiene ninguna lista con la que comparar.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>El disco no ha guardado lo que se escribió. Puede que esté lleno o dañado.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Otros datos</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Comparar con</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>No corresponde a ningún canal</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Omisión o bloqueo</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>Lista</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Mover</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Otro número</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (tal como se leyó)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Nombre allí</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1 del %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (tal como estaba a las %2)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>Ningún canal es de un tipo marcado arriba y corresponde a la búsqueda.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>Nada de esto difiere</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>N.º nuevo</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>N.º allí</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Solo aquí</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Solo allí</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Pegar</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Otro nombre</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Iguales</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Canales comparados</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Adoptar</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>Comparación con «%1»</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>Cambios de «%1»</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>Orden de «%1»</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Canales por pegar</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Va al final</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Incierto</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>El archivo está vacío o no es una lista de canales.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>Si guarda una copia, esta ventana continúa con ella: a partir de entonces, «Guardar» escribe en la copia.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>No se ha podido crear un archivo nuevo en la carpeta «%1»: %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>Ordenar las listas de canales de los televisores LG</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Editor de listas de canales</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, canal, emisora, televisor, televisión, TV, radio, satélite, cable, ordenar</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Televisor:</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal menos</numerusform>
            <numerusform>%n canales menos</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal con otros datos</numerusform>
            <numerusform>%n canales con otros datos</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal que ya no está</numerusform>
            <numerusform>%n canales que ya no están</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal con otro bloqueo</numerusform>
            <numerusform>%n canales con otro bloqueo</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal más</numerusform>
            <numerusform>%n canales más</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal con otro nombre</numerusform>
            <numerusform>%n canales con otro nombre</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>sin %n que es nuevo</numerusform>
            <numerusform>sin %n que son nuevos</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal con otro número</numerusform>
            <numerusform>%n canales con otro número</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>Los mismos canales en otro orden</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>Los mismos canales en el mismo orden</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal con otra marca de omisión</numerusform>
            <numerusform>%n canales con otra marca de omisión</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>Descartar</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Descartar cambios</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>No se ha podido descartar todo. Otro programa usa estas carpetas, o no se puede borrar nada en ellas:</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>¿Desea descartar los cambios sin guardar de «%1»?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>¿Desea descartar los cambios sin guardar de %n lista?</numerusform>
            <numerusform>¿Desea descartar los cambios sin guardar de %n listas?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>Después ya no se podrán recuperar.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>¿Desea descartar unos cambios sin guardar que no se pueden leer?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>el disco comunica un error; puede que esté dañado</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>no queda espacio en el disco</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>se ha retirado el disco</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>UTF-8 con marca (para hojas de cálculo)</translation>
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
        <translation>Windows-1252 (Europa occidental)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>El único canal de esta lista</numerusform>
            <numerusform>Los %n canales de esta lista</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal no tiene identificadores completos y solo se reconoce por su nombre.</numerusform>
            <numerusform>%n canales no tienen identificadores completos y solo se reconocen por su nombre.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>En %n nombre hay comas y espacios en lugar de puntos y comas y saltos de línea; por ese nombre no se reconoce el canal.</numerusform>
            <numerusform>En %n nombres hay comas y espacios en lugar de puntos y comas y saltos de línea; por esos nombres no se reconocen los canales.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>C&amp;odificación:</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>Se escribe una copia de toda la lista de canales con el nombre que elija. El archivo de esta ventana se queda como está. El orden de la copia se puede aplicar a otras listas si su nombre termina en «.tll».</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>No se ha podido exportar la lista como «%1».</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Formato:</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>Con c&amp;laves de canal, para importar cambios</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Exportar lista</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n carácter no existe en esta codificación; en su lugar aparece «?».</numerusform>
            <numerusform>%n caracteres no existen en esta codificación; en su lugar aparece «?».</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal tiene números como identificadores: las listas con identificadores de texto lo reconocen por ellos; esta lista, solo por su nombre.</numerusform>
            <numerusform>%n canales tienen números como identificadores: las listas con identificadores de texto los reconocen por ellos; esta lista, solo por su nombre.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Exportar…</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Página para imprimir (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Lista de referencia para aplicar un orden (texto)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal renombrado no tiene identificadores completos: solo se reconoce cuando la lista se ha guardado y se ha vuelto a abrir.</numerusform>
            <numerusform>%n canales renombrados no tienen identificadores completos: solo se reconocen cuando la lista se ha guardado y se ha vuelto a abrir.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>Se&amp;parador:</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Solo el que se muestra</numerusform>
            <numerusform>Solo los %n que se muestran</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Canales:</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Tabla para hojas de cálculo (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Exportar como lista de referencia (copia de todo el archivo)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>Un orden se lee de al menos tres canales: este archivo no se podría aplicar.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>«%1» no dice si el canal tiene esta marca; 1 o 0 sí.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>«%1» no es un número del 1 al 16383.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Línea %1, columna %2 «%3»:</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>Hay dos columnas «%1».</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>La primera fila debe tener los títulos de las columnas tal como se exportaron, entre ellos «Nombre», «Servicio» o «stationKey».</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>No hay filas de canales.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Línea %1, carácter %2:</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>Hay texto después de unas comillas de cierre.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>La tabla es demasiado grande.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>«%1» no está en ninguna columna con título.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>Aquí empiezan unas comillas que no se cierran.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>Esto no es un archivo de texto.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>No hay ningún archivo en «%1».</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>Archivo</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>El archivo es excesivamente grande para ser una lista de canales.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>No se ha podido leer el archivo: %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>Re&amp;llenar huecos</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>Numerar la lista 1, 2, 3… sin huecos, ahora y después de cada movimiento</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>Todos los tipos</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>Todos los archivos</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Listas de canales</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Otros</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>Páginas HTML</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Listas de referencia</translation>
    </message>
    <message id="kFilterSD">
        <source></source>
        <translation>SD</translation>
    </message>
    <message id="kFilterTables">
        <source></source>
        <translation>Tablas</translation>
    </message>
    <message id="kFilterTextFiles">
        <source></source>
        <translation>Archivos de texto</translation>
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
        <translation>La carpeta «%1» ya no está.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>Se ha movido o eliminado, o se ha retirado su disco. No se ha guardado nada y no se ha perdido nada: la lista sigue en esta ventana con todos sus cambios.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>en su lugar hay una carpeta</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>No se ha podido iniciar ningún programa que muestre la carpeta «%1».</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>Estos canales son de «%1». Borre la búsqueda y el tipo para ver «%2».</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>«%1» ya no está.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>El archivo se ha movido o eliminado, o se ha retirado el disco en el que estaba. Si guarda aquí, se creará un archivo nuevo en ese lugar; si lo quiere en una memoria USB, conéctela antes.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Buscar</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Cerrar la barra de búsqueda</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Coincidencia %1 de %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Buscar en esta página</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Coincidencia siguiente</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>No se ha encontrado en esta página</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Coincidencia anterior</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Buscar una palabra en esta página</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>Adelante</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Página de inicio</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Abrir en el navegador</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>Abrir en Chrome</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Navegación</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>No hay ninguna lista de canales abierta</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Arrastre un archivo TLL de su televisor a esta ventana o elija uno.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>Este tipo de recepción no tiene emisoras de radio</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>No hay canales</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>Este archivo no contiene canales. Puede arrastrar aquí otro archivo TLL.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>Este tipo de recepción no tiene canales de TV</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Abrir un archivo…</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Las emisoras de radio de este tipo de lista no se muestran</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Las que contenga permanecen en el archivo.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>Mostrar sus emisoras de radio</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>Mostrar sus canales de TV</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Actual</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Paso más antiguo conservado</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (guardado)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>Lista tal como se abrió</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>Historial</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Deshecho</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>La tabla no tiene la columna «stationKey»: hay canales que se reconocen solo por su nombre.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Se han cambiado los números y el orden de las filas y no coinciden: cuentan los números.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>Los números no cambian, pero las filas están en otro orden: los canales reciben el orden de las filas.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>No se puede importar «%1». La lista queda como está.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>Las filas corresponden a otra lista de este archivo: %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>La tabla no indica números: los canales reciben el orden de las filas.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Importar cambios de una tabla</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fila no está clara: su clave y su nombre no concuerdan, o el canal aparece otra vez.</numerusform>
            <numerusform>%n filas no están claras: la clave y el nombre no concuerdan, o un canal aparece varias veces.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Columnas que no se leen: %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fila de la tabla no indica ningún canal.</numerusform>
            <numerusform>%n filas de la tabla no indican ningún canal.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Información…</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>Contenido</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Campo</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Campos del canal</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Mostrar todos los campos del canal seleccionado</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>lo está usando otro programa</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>«%1» es una carpeta.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Conservar la mía</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>Español</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Más tarde</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>El enlace al archivo apunta de vuelta a sí mismo.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>No se ha podido abrir la lista de canales.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Aquí no se puede adoptar nada</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1: no marcado</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1: marcado</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha corregido %n «&amp;» suelto.</numerusform>
            <numerusform>Se han corregido %n «&amp;» sueltos.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha corregido %n «&lt;» suelto.</numerusform>
            <numerusform>Se han corregido %n «&lt;» sueltos.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha eliminado %n carácter de control.</numerusform>
            <numerusform>Se han eliminado %n caracteres de control.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>El último canal estaba cortado; se ha conservado lo que está completo.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>El último canal estaba cortado y se ha tenido que omitir.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>Faltaba el final del archivo y se ha añadido.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha eliminado %n fragmento de texto fuera de la lista.</numerusform>
            <numerusform>Se han eliminado %n fragmentos de texto fuera de la lista.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha corregido %n etiqueta que faltaba o era errónea.</numerusform>
            <numerusform>Se han corregido %n etiquetas que faltaban o eran erróneas.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>Esta es una copia reparada de «%1». El archivo en sí queda como está.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>&amp;Acerca de Quillet</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>Guardar reparadas las listas &amp;JSON</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;lógico</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Antena</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>&amp;Aplicar orden…</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>Ord&amp;enar…</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Cable</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>Colu&amp;mnas</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Com&amp;parar con</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>Otra &amp;lista…</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>Archivo tal como se le&amp;yó</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>Co&amp;piar</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>&amp;Edición</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>&amp;Exportar como lista de referencia…</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;Archivo</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>Rellenar &amp;huecos</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>Todos los ti&amp;pos</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>&amp;Otros</translation>
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
        <translation>Bus&amp;car</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>A&amp;yuda de Quillet</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>H&amp;istorial</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>Importar cambios de una tab&amp;la…</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>&amp;Información del canal</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>&amp;Bloqueo infantil</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>Ba&amp;jar</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>&amp;Mover a…</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>Mover a&amp;l final</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>Mo&amp;ver al principio</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>S&amp;ubir</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>Pe&amp;gar</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>Pre&amp;ferencias…</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>Imprimir en forma co&amp;mpacta…</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>&amp;Salir</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>Emisoras de &amp;radio</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>A&amp;brir la carpeta de recuperación</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>&amp;Volver a cargar del disco</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>Re&amp;nombrar</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>&amp;Descartar cambios</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>&amp;Probar un ejemplo</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>&amp;Satélite</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>&amp;Guardar</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>&amp;Seleccionar</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;Todos</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>&amp;Codificados</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>&amp;Invertir selección</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>&amp;Ninguno</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>&amp;Mismo tipo</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>&amp;Omitir</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>In&amp;tercambiar números</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>Más &amp;grande</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normal</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>Tamaño del t&amp;exto</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>Más &amp;pequeño</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>Canales de &amp;TV</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>Listas sin g&amp;uardar…</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>Versiones an&amp;teriores…</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>&amp;Ver</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>lista de canales de LG</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>&amp;Mover a…</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>Dar números nuevos a los canales seleccionados</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Mover el canal seleccionado al número (de 1 a 9999):</numerusform>
            <numerusform>Mover los canales seleccionados al número (de 1 a 9999):</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Mover</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>ya hay un archivo con ese nombre</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>el nombre es demasiado largo</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>el disco o la red no responde</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>Ningún canal coincide con la búsqueda y el tipo.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>No hay memoria suficiente para esta lista. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>La lista no tiene ninguna de las páginas elegidas.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>«%1» no es un archivo normal.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>no tiene permiso para ello</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>Solo se pueden abrir archivos de este equipo.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Los números no bastan: terminan en %1, y %n canal con un número repetido no ha podido recibir uno libre. Al guardar quedaría con un número bajo, como radio.</numerusform>
            <numerusform>Los números no bastan: terminan en %1, y %n canales con números repetidos no han podido recibir uno libre. Al guardar quedarían con números bajos, como radio.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>No se ha encontrado ningún canal, porque esto parece una lista binaria y no un archivo de texto TLL.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Cerrar este aviso</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>El archivo está dañado en la línea %1, después del canal «%2».</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>El archivo está dañado en la línea %1, antes del primer canal completo.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>El archivo está dañado en la línea %1.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>El archivo declara la codificación %1, pero sus letras están en UTF-8. Quillet deja ambas cosas como están; un televisor que se fíe de la declaración muestra mal las letras con acento.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>Otro programa ha modificado «%1». Con «Conservar la mía» la lista se queda como está aquí y, al guardar, sustituye al archivo.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>«%1» ya no está: se ha movido, renombrado o eliminado, o se ha retirado su disco. La lista sigue en esta ventana; puede guardarla en otro lugar.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>«%1» ya no se puede leer. %2 La lista sigue en esta ventana; puede guardarla en otro lugar.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>No se ha encontrado ningún canal, porque no se ha podido descodificar el texto JSON que los contiene (línea %1, columna %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>No se ha encontrado ningún canal, porque el texto JSON que los contiene no está completo.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>El archivo no es UTF-8 válido y se ha descodificado como Latin-1. Al guardar se escribe en UTF-8, lo que cambia todas las letras acentuadas del archivo.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>El archivo no se ha leído a partir de la línea %1: contiene allí más campos, atributos o elementos anidados que cualquier lista de un televisor.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>No se ha encontrado ningún canal, porque este es un texto de otro tipo y no un archivo TLL.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>Este archivo no se puede modificar: el archivo, su carpeta o su disco están protegidos contra escritura. Para conservar sus cambios, guarde una copia; «Guardar» lo ofrece.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>No se ha leído %n canal (&lt;ITEM&gt;) posterior, que se perdería al guardar esta lista.</numerusform>
            <numerusform>No se han leído %n canales (&lt;ITEM&gt;) posteriores, que se perderían al guardar esta lista.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>Lo que sigue no se ha leído.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>los permisos de usuarios y grupos concretos</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>sus atributos extendidos</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>su grupo</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>sus otros nombres, que siguen apuntando a la lista anterior</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>su propietario</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>algunos de sus permisos</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>el disco no lo permite, o no admite ese nombre</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>el archivo o su carpeta no está</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Abrir</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>Este archivo está abierto en otra ventana. Elija otro nombre u otra carpeta.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>No se ha podido abrir «%1».</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Abrir una copia reparada</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Abrir lista de canales</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>«%1» no contiene ningún orden que se pueda aplicar.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>Es una lista de canales completa, por ejemplo una exportación. Dele un nombre que termine en .tll para tomar su orden.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>Es una lista del tipo que guarda sus canales como JSON. En ella los identificadores son números, con los que no se reconocen los canales de otras listas.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Líneas de esa forma en este archivo: %1. Otras líneas: %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>Los canales se reconocen por los identificadores de red original, de flujo de transporte y de servicio, y ninguno de los suyos tiene los tres y un nombre.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>Un archivo de texto debe tener al menos tres líneas de la forma «101;Sample TV;1-10-300» y como máximo otras dos.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>No tiene emisoras de radio.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>No tiene canales de TV.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>El orden se puede tomar de archivos TLL y de archivos de texto (.txt).</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>el sistema comunica el error %1</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>Es el archivo de la propia lista, que una exportación nunca sustituye. Elija otro nombre u otra carpeta.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Conserve una copia del archivo original antes de importar uno modificado en su televisor.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Intercambiar listas con hojas de cálculo e imprimirlas</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Mover canales a un número arrastrando, escribiendo o con el teclado, con o sin huecos</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>Llevar el orden de un televisor antiguo a uno nuevo y comparar dos listas canal por canal</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Dos listas comparadas canal por canal</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>Una lista de canales en su ventana</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet ordena en su ordenador la lista de canales de un televisor LG. El televisor exporta sus canales a una memoria USB como archivo TLL; usted pone cientos de canales en el orden que desee y el televisor vuelve a leer el archivo.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>La primera versión.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Deshacer cada paso, recuperar tras un fallo los cambios sin guardar y volver a versiones anteriores de un archivo</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>Editar listas en scripts y llevarlas en Git con la herramienta quillet-cli</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Página %1 de %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fila del portapapeles no indica ningún canal.</numerusform>
            <numerusform>%n filas del portapapeles no indican ningún canal.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>No se han podido conservar los permisos de acceso del archivo: %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Columnas para:</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>General</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>Listas JSON</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Conservarlos para recuperarlos tras un fallo</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>Si está desactivado, un fallo hace perder los cambios sin guardar. Lo ya conservado permanece hasta que la lista se guarde o se cierre.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Conservar lo que se sustituye al guardar</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Idioma:</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Se aplicará la próxima vez que se inicie Quillet.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>La del sistema</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Preguntas</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Solo si así no se pierde nada. Quillet siempre pregunta antes de que se pierdan cambios, canales o lo que otros han escrito en un archivo.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>Guardar reparadas las listas JSON sin preguntar</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Mostrar carpeta</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Tabla</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Tamaño del texto:</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Preferencias</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>De cada archivo, además de la primera:</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Versiones anteriores</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>La primera versión de cada archivo permanece siempre. Si se superan los límites, las más antiguas se eliminan al guardar la próxima vez. Desactivarlo no elimina nada. quillet‑cli también sigue estos ajustes.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Espacio para todas:</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>En uso: %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>Listas XML</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>Entretanto la vista previa ha cambiado; esta es la nueva.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n número se daría más de una vez.</numerusform>
            <numerusform>%n números se darían más de una vez.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n número está dado más de una vez en la tabla.</numerusform>
            <numerusform>%n números están dados más de una vez en la tabla.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n número está dado allí más de una vez.</numerusform>
            <numerusform>%n números están dados allí más de una vez.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Esto incluye %n fila marcada que no se muestra.</numerusform>
            <numerusform>Esto incluye %n filas marcadas que no se muestran.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n bloqueo cambia</numerusform>
            <numerusform>%n bloqueos cambian</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal recibe otro número o lugar</numerusform>
            <numerusform>%n canales reciben otro número o lugar</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>Las dos listas no tienen ningún canal en común.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>No cambiaría nada.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Vista previa…</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Canales encontrados: %1. Van al final: %2. Entradas sin canal: %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal marcado pasa al número %1, donde ahora está «%2».</numerusform>
            <numerusform>%n canales marcados pasan al número %1, donde ahora está «%2».</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>No se puede mover nada: ninguna fila corresponde a un canal de la lista mostrada.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>No hay ninguna fila marcada: marque los canales que se deben mover.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal cambia de nombre</numerusform>
            <numerusform>%n canales cambian de nombre</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Solo lo seleccionado: %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n marca de omisión cambia</numerusform>
            <numerusform>%n marcas de omisión cambian</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>La lista se pone en el orden de sus números.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal cuyo número se ocupa va al final: %1.</numerusform>
            <numerusform>%n canales cuyos números se ocupan van al final: %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fila no corresponde a ningún canal.</numerusform>
            <numerusform>%n filas no corresponden a ningún canal.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fila incierta o de otra lista no está marcada.</numerusform>
            <numerusform>%n filas inciertas o de otra lista no están marcadas.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>solo %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Emisoras de radio, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>«%1»</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>Canales de TV, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>No se ha podido imprimir «%1».</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>No se ha podido abrir la impresora o el archivo, o no ha aceptado todas las páginas.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>Imprimir en un archivo</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>La lista no se ha podido imprimir en «%1».</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Recuperar</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>No se ha podido recuperar la versión.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>Sus canales no son uno a uno los que hay ahora en la lista; solo se puede abrir.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>La lista está ahora como entonces.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>Recuperarla es un solo paso, que se puede deshacer; con ello no se guarda nada.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>ha agotado su cuota de disco</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radio</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>No se ha podido comprobar el archivo nuevo. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>el disco está protegido contra escritura</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 ya no existe.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Listas recientes</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Cambios</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>Lo que se conservó de los cambios está dañado.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>No se ha podido recuperar todo.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Carpeta</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Nombre</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>Los cambios los conservó una versión más reciente del programa.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>Es un estado anterior de una lista que se acaba de recuperar. Sigue conservado: descártelo, o recupérelo cuando la otra esté cerrada.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>La lista está abierta en una ventana y tiene cambios en ella. Guárdelos o descártelos antes.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>La lista anterior a los cambios está en %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>El programa terminó antes de que se guardaran estos cambios. Se han conservado y se pueden recuperar.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Último cambio</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Listas sin guardar</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>No se puede leer</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Volver a cargar</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>¿Desea volver a leer «%1» del disco?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>Se perderán los cambios que no haya guardado.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Quitar de la lista</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>Tiene cambios sin guardar en listas que no se están mostrando. Si abre aquí el archivo arrastrado, se perderán.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>El archivo nuevo no ha podido sustituir al anterior: %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>¿Reemplazar la lista de canales «%1»?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>No se ha podido volver a leer «%1». La lista de esta ventana se queda como está.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>¿Desea volver a la última versión guardada de «%1»?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>Se perderán todos los cambios hechos desde entonces.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Guardar reparadas todas las listas de este tipo (JSON), sin preguntar</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal perdería parte de sus datos: %1</numerusform>
            <numerusform>%n canales perderían parte de sus datos: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal aparecería dos veces: %1</numerusform>
            <numerusform>%n canales aparecerían dos veces: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>Las letras con acento se escribirían en UTF-8, que no es la codificación que declara el archivo.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>Una exportación solo tiene esta forma. Su propio archivo queda como está.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Se perderían comentarios o datos adicionales entre los canales.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>Comprobando que al guardar «%1» no se pierde nada…</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>Al guardar «%1» se perdería algo.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Faltaría %n canal: %1</numerusform>
            <numerusform>Faltarían %n canales: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>No hay forma de escribir este archivo con menos pérdidas. Conserve una copia del archivo anterior antes de guardar.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n número o valor repetido de la lista JSON se escribiría de otra forma o se perdería.</numerusform>
            <numerusform>%n números o valores repetidos de la lista JSON se escribirían de otra forma o se perderían.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>El archivo guardado no podría volver a abrirse.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal recibiría otro número: %1</numerusform>
            <numerusform>%n canales recibirían otro número: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>Con «Guardar la versión reparada» no se pierde nada: se escriben sus cambios y todo lo demás queda como se leyó.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>«Guardar la versión reparada» escribe sus cambios y deja todo lo demás como se leyó, pero aun así:</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>Se perdería lo que el televisor guarda antes o después de los canales.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Todo lo que sigue a un punto dañado del archivo se perdería.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal situado tras un punto dañado del archivo nunca se leyó y se perdería.</numerusform>
            <numerusform>%n canales situados tras un punto dañado del archivo nunca se leyeron y se perderían.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>hallado por su nombre</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>aparece varias veces</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>allí en otra lista</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>otros datos</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>no corresponde a ningún canal</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>no bloqueado allí</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>bloqueado allí</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>incierto: nombre parecido</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>otro número</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>solo aquí</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>solo allí</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>otro nombre</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>no omitido allí</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>omitido allí</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>va al final</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>incierto</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Lista de ejemplo</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Satélite</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Guardar de todos modos</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Guardar como…</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Guardar la lista de canales como</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>¿Desea guardar los cambios hechos en «%1»?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Si no guarda los cambios, se perderán.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Guardar una copia…</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Guardar una copia</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>No se ha podido guardar «%1». El archivo del disco no se ha modificado.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>«%1» ya no está. ¿Desea guardar la lista en otro lugar?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>El archivo se ha movido, renombrado o eliminado. Si se ha eliminado, la lista solo existe en esta ventana.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Guardar aquí de todos modos</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Guardar la versión reparada</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Guardar la lista de canales</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Guardar sin conservarla</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Guardar sin %n canal</numerusform>
            <numerusform>Guardar sin %n canales</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Nombre del canal</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Coma</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Punto y coma</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Tabulador</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Canales encontrados: %1
Canales no encontrados: %2
Estos continúan a partir del número: %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>Se ha aplicado el orden de «%1».</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Tipo de recepción</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Paso a paso: del televisor y de vuelta</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>Para obtener uno, conecte una memoria USB al televisor y busque en sus ajustes, entre los de los canales, una opción que copie o exporte la lista de canales a USB. Conecte después la memoria a este ordenador, haga una copia del archivo y ábrala.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>¿Qué es un archivo TLL?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>Es la lista de canales de un televisor: sus canales y los números que tienen. El televisor la escribe en una memoria USB, aquí la ordena y después el televisor la vuelve a leer.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>canal</numerusform>
            <numerusform>canales</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Canales</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ordenación de %n canal</numerusform>
            <numerusform>Ordenación de %n canales</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Relleno de huecos</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>Importación de «%1»</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Bloqueo de %n canal</numerusform>
            <numerusform>Bloqueo de %n canales</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Movimiento de %n canal</numerusform>
            <numerusform>Movimiento de %n canales</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>Orden de %1</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>Versión de %1</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Cambio de nombre a «%1»</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Omisión de %n canal</numerusform>
            <numerusform>Omisión de %n canales</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Intercambio de números</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>Adopción de «%1»</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Desbloqueo de %n canal</numerusform>
            <numerusform>Desbloqueo de %n canales</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Fin de la omisión de %n canal</numerusform>
            <numerusform>Fin de la omisión de %n canales</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Bloqueos</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Nombres</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Números y orden</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Adoptar:</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Adoptar todos</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Adoptar seleccionados</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Omisiones</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>Los canales seleccionados ya están al final</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>Los canales seleccionados ya están al principio</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>Esta columna se muestra siempre</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>El archivo no lo indica de ningún canal de esta lista</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>Las columnas ya son las habituales</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>Por esta columna se reconocen los canales al importar cambios, sea cual sea su orden y su número</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>Los tipos solo se pueden elegir para canales de TV</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>Los canales mostrados son de otro tipo de recepción; borre primero la búsqueda y el tipo</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>No hay ningún archivo en el disco que volver a leer</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>El archivo no indica ningún canal codificado</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>No hay ninguna fila seleccionada.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Abra una lista, o elija un tipo de recepción, que tenga canales</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Abra un archivo que tenga canales de este tipo de recepción</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>No hay más pasos en esta dirección</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>El portapapeles no tiene filas que indiquen canales</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>La lista no se leyó de un archivo</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>El archivo no indica este dato de estos canales</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>Cada vez que guarda sobre un archivo se conserva su versión; de esta lista aún no hay ninguna</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>Esta página ya tiene los valores predeterminados</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>Los nombres solo se pueden cambiar en la lista analógica</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Escriba primero algo en el campo de búsqueda</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Seleccione primero canales en la lista</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Seleccione primero exactamente dos canales</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>De las filas seleccionadas no se puede adoptar nada.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>Ninguna de las filas seleccionadas está marcada.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>No hay suficientes canales que ordenar</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>En las preferencias está desactivado conservar versiones anteriores</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>En todo el archivo: TV y radio, de todos los tipos de recepción</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal ocupa ahora otro lugar</numerusform>
            <numerusform>%n canales ocupan ahora otro lugar</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>Los cambios de «%1» están de vuelta, pero aún sin guardar</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Huecos rellenados: %n número cambiado</numerusform>
            <numerusform>Huecos rellenados: %n números cambiados</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>Exportado a %1, como lista de canales completa.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>Exportado a %1.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>No se ha cambiado nada: las filas siguen siendo las de «%1», pero está elegido «%2»</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal cambiado según «%1»</numerusform>
            <numerusform>%n canales cambiados según «%1»</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal bloqueado</numerusform>
            <numerusform>%n canales bloqueados</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal movido al %1</numerusform>
            <numerusform>%n canales movidos al %1</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal movido hacia abajo</numerusform>
            <numerusform>%n canales movidos hacia abajo</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal movido al final</numerusform>
            <numerusform>%n canales movidos al final</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal movido al principio</numerusform>
            <numerusform>%n canales movidos al principio</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal movido hacia arriba</numerusform>
            <numerusform>%n canales movidos hacia arriba</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>No se ha escrito nada: aún hay una pregunta abierta sobre esta lista</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>Ningún canal de la lista contiene «%1» en su nombre</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>«%1» se guardó, pero el archivo perdió: %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>Los cambios de «%1» se perderían en un fallo, porque no se pueden conservar aparte: %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>No se ha movido nada: el número debe estar entre 1 y %1</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>No se ha adoptado nada: la lista ha cambiado entretanto</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>Orden de «%1» aplicado</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Solo se ha tomado «%1»: esta ventana contiene una sola lista. Se ha soltado %n archivo más</numerusform>
            <numerusform>Solo se ha tomado «%1»: esta ventana contiene una sola lista. Se han soltado %n archivos más</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n número más cambiado</numerusform>
            <numerusform>%n números más cambiados</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n más pasado al final</numerusform>
            <numerusform>%n más pasados al final</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>No se ha movido nada: los canales, o la fila a la que debían ir, ya no están en la lista mostrada</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>No se ha movido nada: los canales ya están ahí</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>Impreso en %1.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>Versión de %1 recuperada</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Rehecho: %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>«%1» se ha vuelto a leer del disco</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Canal renombrado como «%1»</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Se ha guardado la versión reparada, como eligió: no se ha perdido nada.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>«%1» está como se guardó por última vez</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>Esta lista es inventada, para probar. Ninguno de sus archivos se modifica.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>Guardado en %1.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se omitirá %n canal</numerusform>
            <numerusform>Se omitirán %n canales</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>Los canales %1 y %2 han intercambiado sus números</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Se ha adoptado %n canal de «%1»</numerusform>
            <numerusform>Se han adoptado %n canales de «%1»</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>«%1» no ha cambiado en el disco</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Deshecho: %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n canal desbloqueado</numerusform>
            <numerusform>%n canales desbloqueados</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ya no se omitirá %n canal</numerusform>
            <numerusform>Ya no se omitirán %n canales</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Se ha pasado a otro paso del historial</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>el archivo es más grande de lo que se permite allí</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>hay demasiados archivos abiertos</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Probar un ejemplo</translation>
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
        <translation>Deshacer</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>No se ha podido conservar la versión de «%1» que se va a sustituir.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>Al guardar se sustituirá definitivamente: no estará entre las versiones anteriores, que se conservan en «%1».</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>No se puede leer lo que hay ahora en el lugar de «%1».</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>No se puede saber si otro programa ha modificado el archivo. Si guarda ahora, se perderá lo que haya allí.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>«%1» se ha escrito, pero el disco no confirma que esté guardado de forma segura.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>La lista sigue marcada como modificada. Guárdela de nuevo o guarde una copia en otro disco.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Sin título</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>el sistema no indica el motivo</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>El archivo dañado se conserva como está. Elija otro nombre u otra carpeta.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Columnas habituales</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Comparar…</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Dañada o desaparecida; ya no se puede leer</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>Esta versión está dañada: ya no es lo que se conservó.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>Comparada con ahora</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (la primera)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>No se puede leer ninguna lista de canales en ella</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Abrir</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Comparando…</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>Lo que contenía «%1» antes de guardar encima:</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Tamaño</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Otro programa lleva demasiado tiempo conservando una versión en «%1».</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>Todos los canales</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Versiones anteriores</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>Lo que ya se conserva de este archivo en «%1» no se puede leer en este momento.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Última modificación</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Desconocida</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>El disco no ha admitido el archivo completo: %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>«%1» está protegido contra escritura.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>coincidencia</numerusform>
            <numerusform>coincidencias</numerusform>
        </translation>
    </message>
</context>
</TS>
