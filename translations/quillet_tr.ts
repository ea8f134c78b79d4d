<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name></name>
    <message id="Bad file format">
        <source></source>
        <translation>Geçersiz dosya biçimi</translation>
    </message>
    <message id="HELP_TITLE">
        <source></source>
        <translation>Quillet Yardımı</translation>
    </message>
    <message id="kAboutLibraries">
        <source></source>
        <translation>%1 ile geliştirildi.</translation>
    </message>
    <message id="kAboutLicence">
        <source></source>
        <translation>Telif hakkı 2026 Quillet yazarları. MIT lisansı ile dağıtılan özgür yazılım.</translation>
    </message>
    <message id="kAboutPurpose">
        <source></source>
        <translation>LG televizyonların kanal listelerini sıralar.</translation>
    </message>
    <message id="kAboutTitle">
        <source></source>
        <translation>Quillet Hakkında</translation>
    </message>
    <message id="kAboutVersion">
        <source></source>
        <translation>Sürüm %1</translation>
    </message>
    <message id="kAnalogue">
        <source></source>
        <translation>Analog</translation>
    </message>
    <message id="kAndMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 ve %n tane daha</numerusform>
        </translation>
    </message>
    <message id="kAntenna">
        <source></source>
        <translation>Anten</translation>
    </message>
    <message id="kApplyOrder">
        <source></source>
        <translation>&amp;Sırayı Uygula…</translation>
    </message>
    <message id="kApplyOrderTip">
        <source></source>
        <translation>Bu listeyi başka bir listenin sırasına koy</translation>
    </message>
    <message id="kApplyOrderTitle">
        <source></source>
        <translation>Referans Listesi Seç</translation>
    </message>
    <message id="kArrangeAllShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Gösterilen %n kanalın tümünü, şu an bulundukları numaralar arasında sıralar.</numerusform>
        </translation>
    </message>
    <message id="kArrangeByEncryption">
        <source></source>
        <translation>Şifreleme</translation>
    </message>
    <message id="kArrangeByFrequency">
        <source></source>
        <translation>Frekans</translation>
    </message>
    <message id="kArrangeByName">
        <source></source>
        <translation>Ad</translation>
    </message>
    <message id="kArrangeByNetwork">
        <source></source>
        <translation>Ağ</translation>
    </message>
    <message id="kArrangeByNumber">
        <source></source>
        <translation>Numara</translation>
    </message>
    <message id="kArrangeBySatellite">
        <source></source>
        <translation>Uydu</translation>
    </message>
    <message id="kArrangeByServiceId">
        <source></source>
        <translation>Hizmet Kimliği</translation>
    </message>
    <message id="kArrangeByType">
        <source></source>
        <translation>Tür (UHD, HD, SD)</translation>
    </message>
    <message id="kArrangeDirection">
        <source></source>
        <translation>Yön</translation>
    </message>
    <message id="kArrangeDown">
        <source></source>
        <translation>Azalan</translation>
    </message>
    <message id="kArrangeEncryptedFirst">
        <source></source>
        <translation>Önce şifreliler</translation>
    </message>
    <message id="kArrangeFirst">
        <source></source>
        <translation>&amp;Sıralama ölçütü:</translation>
    </message>
    <message id="kArrangeFreeFirst">
        <source></source>
        <translation>Önce şifresizler</translation>
    </message>
    <message id="kArrangeNoChange">
        <source></source>
        <translation>Bu kanalların tümü zaten bu sırada.</translation>
    </message>
    <message id="kArrangeNothing">
        <source></source>
        <translation>Başka Ölçüt Yok</translation>
    </message>
    <message id="kArrangeOK">
        <source></source>
        <translation>Sırala</translation>
    </message>
    <message id="kArrangePreview" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal yer değiştirir.</numerusform>
        </translation>
    </message>
    <message id="kArrangeSelected" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Seçili %n kanalı, şu an bulundukları numaralar arasında sıralar.</numerusform>
        </translation>
    </message>
    <message id="kArrangeThen">
        <source></source>
        <translation>So&amp;nra:</translation>
    </message>
    <message id="kArrangeThenBy">
        <source></source>
        <translation>Son&amp;ra:</translation>
    </message>
    <message id="kArrangeTip">
        <source></source>
        <translation>Kanalları bulundukları numaralar arasında sırala</translation>
    </message>
    <message id="kArrangeTitle">
        <source></source>
        <translation>Kanalları Sırala</translation>
    </message>
    <message id="kArrangeUp">
        <source></source>
        <translation>Artan</translation>
    </message>
    <message id="kBad_file_type">
        <source></source>
        <translation>Bu türdeki dosyalar kullanılamaz</translation>
    </message>
    <message id="kBadSectionContent">
        <source></source>
        <translation>%1 bölümünde kanal listesi yok.</translation>
    </message>
    <message id="kBadSectionDistance" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 bölümünün ilk kanalı bölümün başından %n karakter sonra geliyor; en çok %2 karaktere izin verilir.</numerusform>
        </translation>
    </message>
    <message id="kBeyondAnyway">
        <source></source>
        <translation>Numaraları Yine de Değiştir</translation>
    </message>
    <message id="kBeyondMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal, kanal listesinin tutamayacağı bir numara alır.</numerusform>
        </translation>
    </message>
    <message id="kBeyondText">
        <source></source>
        <translation>En yüksek numara %1. Bunu aşan bir kanal 0 gibi küçük bir numara alır ve radyo olarak işaretlenebilir.</translation>
    </message>
    <message id="kBringBack">
        <source></source>
        <translation>Geri Getir</translation>
    </message>
    <message id="kCable">
        <source></source>
        <translation>Kablo</translation>
    </message>
    <message id="kCancel">
        <source></source>
        <translation>İptal</translation>
    </message>
    <message id="kChangedOnDiskMessage">
        <source></source>
        <translation>“%1” başka bir program tarafından değiştirildi.</translation>
    </message>
    <message id="kChangedOnDiskText">
        <source></source>
        <translation>Şimdi kaydederseniz diğer programın yaptığı değişiklikler kaybolur.</translation>
    </message>
    <message id="kChoosePlace">
        <source></source>
        <translation>Başka Bir Yer Seç…</translation>
    </message>
    <message id="kClearFilters">
        <source></source>
        <translation>Aramayı ve Türü Temizle</translation>
    </message>
    <message id="kClearMenu">
        <source></source>
        <translation>Menüyü Temizle</translation>
    </message>
    <message id="kClearSearch">
        <source></source>
        <translation>Aramayı temizle</translation>
    </message>
    <message id="kClipboard">
        <source></source>
        <translation>Pano</translation>
    </message>
    <message id="kClose">
        <source></source>
        <translation>Kapat</translation>
    </message>
    <message id="kCloseUnsaved">
        <source></source>
        <translation>Kaydetmeden Kapat</translation>
    </message>
    <message id="kColumnBlocked">
        <source></source>
        <translation>Kilit</translation>
    </message>
    <message id="kColumnEncrypted">
        <source></source>
        <translation>Şifreli</translation>
    </message>
    <message id="kColumnFrequency">
        <source></source>
        <translation>Frekans</translation>
    </message>
    <message id="kColumnHidden">
        <source></source>
        <translation>Gizli</translation>
    </message>
    <message id="kColumnName">
        <source></source>
        <translation>Ad</translation>
    </message>
    <message id="kColumnNetworkId">
        <source></source>
        <translation>Ağ</translation>
    </message>
    <message id="kColumnNetworkIdFull">
        <source></source>
        <translation>Ağ Kimliği</translation>
    </message>
    <message id="kColumnNumber">
        <source></source>
        <translation>No.</translation>
    </message>
    <message id="kColumnNumberFull">
        <source></source>
        <translation>Numara</translation>
    </message>
    <message id="kColumnSatellite">
        <source></source>
        <translation>Uydu</translation>
    </message>
    <message id="kColumnServiceId">
        <source></source>
        <translation>Hizmet</translation>
    </message>
    <message id="kColumnServiceIdFull">
        <source></source>
        <translation>Hizmet Kimliği</translation>
    </message>
    <message id="kColumnSkipped">
        <source></source>
        <translation>Atla</translation>
    </message>
    <message id="kColumnTransportStreamId">
        <source></source>
        <translation>Akış</translation>
    </message>
    <message id="kColumnTransportStreamIdFull">
        <source></source>
        <translation>Taşıma Akışı Kimliği</translation>
    </message>
    <message id="kColumnType">
        <source></source>
        <translation>Tür</translation>
    </message>
    <message id="kCompareAllLists">
        <source></source>
        <translation>Tüm listeler</translation>
    </message>
    <message id="kCompareApply">
        <source></source>
        <translation>Uygula</translation>
    </message>
    <message id="kCompareClipboard">
        <source></source>
        <translation>Panoda</translation>
    </message>
    <message id="kCompareDifference">
        <source></source>
        <translation>Fark</translation>
    </message>
    <message id="kCompareEmpty">
        <source></source>
        <translation>Hiçbir fark yok.</translation>
    </message>
    <message id="kCompareFailed">
        <source></source>
        <translation>“%1” karşılaştırılacak bir liste içermiyor.</translation>
    </message>
    <message id="kCompareFailedReason">
        <source></source>
        <translation>Disk, yazılanı saklamadı. Dolu veya hasarlı olabilir.</translation>
    </message>
    <message id="kCompareFields">
        <source></source>
        <translation>Başka bilgiler</translation>
    </message>
    <message id="kCompareFileTitle">
        <source></source>
        <translation>Karşılaştır</translation>
    </message>
    <message id="kCompareFitsNothing">
        <source></source>
        <translation>Hiçbir kanala uymuyor</translation>
    </message>
    <message id="kCompareFlags">
        <source></source>
        <translation>Atlama veya kilit</translation>
    </message>
    <message id="kCompareList">
        <source></source>
        <translation>Liste</translation>
    </message>
    <message id="kCompareMove">
        <source></source>
        <translation>Taşı</translation>
    </message>
    <message id="kCompareMoved">
        <source></source>
        <translation>Başka numara</translation>
    </message>
    <message id="kCompareNameRead">
        <source></source>
        <translation>%1 (okunduğu hâliyle)</translation>
    </message>
    <message id="kCompareNameThere">
        <source></source>
        <translation>Oradaki ad</translation>
    </message>
    <message id="kCompareNameVersion">
        <source></source>
        <translation>%1, %2</translation>
    </message>
    <message id="kCompareNameWindow">
        <source></source>
        <translation>%1 (saat %2 itibarıyla)</translation>
    </message>
    <message id="kCompareNoneShown">
        <source></source>
        <translation>Yukarıda işaretli türde olup aramaya da uyan kanal yok.</translation>
    </message>
    <message id="kCompareNoSuchDifference">
        <source></source>
        <translation>Bunda fark yok</translation>
    </message>
    <message id="kCompareNumberNew">
        <source></source>
        <translation>Yeni no.</translation>
    </message>
    <message id="kCompareNumberThere">
        <source></source>
        <translation>Oradaki no.</translation>
    </message>
    <message id="kCompareOnlyHere">
        <source></source>
        <translation>Yalnızca burada</translation>
    </message>
    <message id="kCompareOnlyThere">
        <source></source>
        <translation>Yalnızca orada</translation>
    </message>
    <message id="kComparePaste">
        <source></source>
        <translation>Yapıştır</translation>
    </message>
    <message id="kCompareRenamed">
        <source></source>
        <translation>Başka ad</translation>
    </message>
    <message id="kCompareSame">
        <source></source>
        <translation>Aynı</translation>
    </message>
    <message id="kCompareTable">
        <source></source>
        <translation>Karşılaştırılan kanallar</translation>
    </message>
    <message id="kCompareTake">
        <source></source>
        <translation>Devral</translation>
    </message>
    <message id="kCompareTitle">
        <source></source>
        <translation>“%1” ile karşılaştırma</translation>
    </message>
    <message id="kCompareTitleImport">
        <source></source>
        <translation>“%1” dosyasındaki değişiklikler</translation>
    </message>
    <message id="kCompareTitleOrder">
        <source></source>
        <translation>“%1” sırası</translation>
    </message>
    <message id="kCompareTitlePaste">
        <source></source>
        <translation>Yapıştırılacak kanallar</translation>
    </message>
    <message id="kCompareToTheEnd">
        <source></source>
        <translation>Sona gider</translation>
    </message>
    <message id="kCompareUnclear">
        <source></source>
        <translation>Kesin değil</translation>
    </message>
    <message id="kContentUnknownReason">
        <source></source>
        <translation>Dosya boş ya da bir kanal listesi değil.</translation>
    </message>
    <message id="kCopyBecomesText">
        <source></source>
        <translation>Bir kopya kaydederseniz bu pencere kopyayla devam eder: “Kaydet” artık kopyaya yazar.</translation>
    </message>
    <message id="kCreateFailedReason">
        <source></source>
        <translation>“%1” klasöründe yeni dosya oluşturulamadı: %2.</translation>
    </message>
    <message id="kDesktopComment">
        <source></source>
        <translation>LG televizyonların kanal listelerini sıralayın</translation>
    </message>
    <message id="kDesktopGenericName">
        <source></source>
        <translation>Kanal Listesi Düzenleyicisi</translation>
    </message>
    <message id="kDesktopKeywords">
        <source></source>
        <translation>TLL, kanal, istasyon, televizyon, TV, radyo, uydu, kablo, sıralama</translation>
    </message>
    <message id="kDeviceTitle">
        <source></source>
        <translation>Televizyon:</translation>
    </message>
    <message id="kDiffFewer" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal eksik</numerusform>
        </translation>
    </message>
    <message id="kDiffFields" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanalın bilgileri farklı</numerusform>
        </translation>
    </message>
    <message id="kDiffGone" numerus="yes">
        <source></source>
        <translation>
            <numerusform>artık olmayan %n kanal var</numerusform>
        </translation>
    </message>
    <message id="kDiffLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanalın kilidi farklı</numerusform>
        </translation>
    </message>
    <message id="kDiffMore" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal fazla</numerusform>
        </translation>
    </message>
    <message id="kDiffNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal başka adla</numerusform>
        </translation>
    </message>
    <message id="kDiffNew" numerus="yes">
        <source></source>
        <translation>
            <numerusform>yeni olan %n kanal yok</numerusform>
        </translation>
    </message>
    <message id="kDiffNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal başka numarada</numerusform>
        </translation>
    </message>
    <message id="kDiffOrder">
        <source></source>
        <translation>Aynı kanallar başka bir sırada</translation>
    </message>
    <message id="kDiffSame">
        <source></source>
        <translation>Aynı kanallar aynı sırada</translation>
    </message>
    <message id="kDiffSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanalın atlama işareti farklı</numerusform>
        </translation>
    </message>
    <message id="kDiscard">
        <source></source>
        <translation>At</translation>
    </message>
    <message id="kDiscardChanges">
        <source></source>
        <translation>Değişiklikleri At</translation>
    </message>
    <message id="kDiscardFailedMessage">
        <source></source>
        <translation>Her şey atılamadı. Bu klasörleri başka bir program kullanıyor ya da orada hiçbir şey silinemiyor:</translation>
    </message>
    <message id="kDiscardOneMessage">
        <source></source>
        <translation>“%1” dosyasındaki kaydedilmemiş değişiklikleri atmak istiyor musunuz?</translation>
    </message>
    <message id="kDiscardSomeMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n listedeki kaydedilmemiş değişiklikleri atmak istiyor musunuz?</numerusform>
        </translation>
    </message>
    <message id="kDiscardText">
        <source></source>
        <translation>Sonra geri getirilemezler.</translation>
    </message>
    <message id="kDiscardUnreadableMessage">
        <source></source>
        <translation>Okunamayan, kaydedilmemiş değişiklikleri atmak istiyor musunuz?</translation>
    </message>
    <message id="kDiskFaultReason">
        <source></source>
        <translation>disk bir hata bildiriyor; hasarlı olabilir</translation>
    </message>
    <message id="kDiskFullReason">
        <source></source>
        <translation>diskte yer kalmadı</translation>
    </message>
    <message id="kDiskRemovedReason">
        <source></source>
        <translation>disk çıkarıldı</translation>
    </message>
    <message id="kEncodingMarkedUtf8">
        <source></source>
        <translation>İşaretli UTF-8 (hesap tabloları için)</translation>
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
        <translation>Windows-1252 (Batı Avrupa)</translation>
    </message>
    <message id="kExportAll" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Bu listedeki %n kanalın tümü</numerusform>
        </translation>
    </message>
    <message id="kExportByName" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanalın kimlikleri eksik; yalnızca adından tanınır.</numerusform>
        </translation>
    </message>
    <message id="kExportChangedNames" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n adda noktalı virgül ve satır sonlarının yerinde virgül ve boşluk var; kanal bu addan tanınmaz.</numerusform>
        </translation>
    </message>
    <message id="kExportEncoding">
        <source></source>
        <translation>K&amp;odlama:</translation>
    </message>
    <message id="kExportExplanation">
        <source></source>
        <translation>Kanal listesinin tamamının bir kopyası, seçtiğiniz adla yazılır. Bu pencerenin dosyası olduğu gibi kalır. Kopyanın adı “.tll” ile bitiyorsa sırası başka listelere uygulanabilir.</translation>
    </message>
    <message id="kExportFailedMessage">
        <source></source>
        <translation>Liste “%1” olarak dışa aktarılamadı.</translation>
    </message>
    <message id="kExportFormat">
        <source></source>
        <translation>&amp;Biçim:</translation>
    </message>
    <message id="kExportKeys">
        <source></source>
        <translation>Değişiklikleri içe aktarmak için kanal &amp;anahtarlarıyla</translation>
    </message>
    <message id="kExportListTitle">
        <source></source>
        <translation>Listeyi Dışa Aktar</translation>
    </message>
    <message id="kExportLost" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Bu kodlamada %n karakter yok; yerine “?” konuyor.</numerusform>
        </translation>
    </message>
    <message id="kExportNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanalın kimlikleri sayı: kimlikleri metin olan listeler onu bunlardan, bu liste yalnızca adından tanır.</numerusform>
        </translation>
    </message>
    <message id="kExportOK">
        <source></source>
        <translation>Dışa Aktar…</translation>
    </message>
    <message id="kExportPage">
        <source></source>
        <translation>Yazdırılacak sayfa (HTML)</translation>
    </message>
    <message id="kExportReferenceList">
        <source></source>
        <translation>Sıra uygulamak için referans listesi (metin)</translation>
    </message>
    <message id="kExportRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Adı değiştirilmiş %n kanalın kimlikleri eksik: ancak liste kaydedilip yeniden açıldığında tanınır.</numerusform>
        </translation>
    </message>
    <message id="kExportSeparator">
        <source></source>
        <translation>Ay&amp;ırıcı:</translation>
    </message>
    <message id="kExportShown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Yalnızca gösterilen %n kanal</numerusform>
        </translation>
    </message>
    <message id="kExportStations">
        <source></source>
        <translation>&amp;Kanallar:</translation>
    </message>
    <message id="kExportTable">
        <source></source>
        <translation>Hesap tabloları için tablo (CSV)</translation>
    </message>
    <message id="kExportTitle">
        <source></source>
        <translation>Referans Listesi Olarak Dışa Aktar (Tüm Dosyanın Kopyası)</translation>
    </message>
    <message id="kExportTooShort">
        <source></source>
        <translation>Bir sıra en az üç kanaldan okunur: bu dosya uygulanamaz.</translation>
    </message>
    <message id="kFaultBadMark">
        <source></source>
        <translation>“%1” kanalda bu işaretin olup olmadığını söylemiyor; 1 ya da 0 yazın.</translation>
    </message>
    <message id="kFaultBadNumber">
        <source></source>
        <translation>“%1” 1 ile 16383 arasında bir numara değil.</translation>
    </message>
    <message id="kFaultCellPlace">
        <source></source>
        <translation>Satır %1, sütun %2 “%3”:</translation>
    </message>
    <message id="kFaultDoubledColumn">
        <source></source>
        <translation>İki tane “%1” sütunu var.</translation>
    </message>
    <message id="kFaultNoColumns">
        <source></source>
        <translation>İlk satırda sütun başlıkları dışa aktarıldığı gibi bulunmalı; aralarında “Ad”, “Hizmet” ya da “stationKey” olmalı.</translation>
    </message>
    <message id="kFaultNoRows">
        <source></source>
        <translation>Kanal satırı yok.</translation>
    </message>
    <message id="kFaultPlace">
        <source></source>
        <translation>Satır %1, karakter %2:</translation>
    </message>
    <message id="kFaultTextBehindQuote">
        <source></source>
        <translation>Kapanan tırnak işaretinden sonra metin var.</translation>
    </message>
    <message id="kFaultTooLarge">
        <source></source>
        <translation>Tablo çok büyük.</translation>
    </message>
    <message id="kFaultTooManyCells">
        <source></source>
        <translation>“%1” başlığı olan bir sütunda değil.</translation>
    </message>
    <message id="kFaultUnclosedQuote">
        <source></source>
        <translation>Burada açılan tırnak işareti hiç kapanmıyor.</translation>
    </message>
    <message id="kFaultZeroCharacter">
        <source></source>
        <translation>Bu bir metin dosyası değil.</translation>
    </message>
    <message id="kFileMissingReason">
        <source></source>
        <translation>“%1” konumunda dosya yok.</translation>
    </message>
    <message id="kFileName">
        <source></source>
        <translation>Dosya</translation>
    </message>
    <message id="kFileTooLargeReason">
        <source></source>
        <translation>Dosya, kanal listesi olamayacak kadar büyük.</translation>
    </message>
    <message id="kFileUnreadableReason">
        <source></source>
        <translation>Dosya okunamadı: %1.</translation>
    </message>
    <message id="kFillGaps">
        <source></source>
        <translation>Boş&amp;lukları doldur</translation>
    </message>
    <message id="kFillGapsTip">
        <source></source>
        <translation>Listeyi şimdi ve her taşımadan sonra boşluksuz olarak 1, 2, 3… diye numarala</translation>
    </message>
    <message id="kFilterAll">
        <source></source>
        <translation>Tüm türler</translation>
    </message>
    <message id="kFilterAllFiles">
        <source></source>
        <translation>Tüm dosyalar</translation>
    </message>
    <message id="kFilterChannelLists">
        <source></source>
        <translation>Kanal listeleri</translation>
    </message>
    <message id="kFilterHD">
        <source></source>
        <translation>HD</translation>
    </message>
    <message id="kFilterOther">
        <source></source>
        <translation>Diğer</translation>
    </message>
    <message id="kFilterPages">
        <source></source>
        <translation>HTML sayfaları</translation>
    </message>
    <message id="kFilterReferenceLists">
        <source></source>
        <translation>Referans listeleri</translation>
    </message>
    <message id="kFilterSD">
        <source></source>
        <translation>SD</translation>
    </message>
    <message id="kFilterTables">
        <source></source>
        <translation>Tablolar</translation>
    </message>
    <message id="kFilterTextFiles">
        <source></source>
        <translation>Metin dosyaları</translation>
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
        <translation>“%1” klasörü artık yerinde değil.</translation>
    </message>
    <message id="kFolderGoneText">
        <source></source>
        <translation>Taşındı veya silindi ya da diski çıkarıldı. Hiçbir şey kaydedilmedi ve hiçbir şey kaybolmadı: liste tüm değişiklikleriyle hâlâ bu pencerede.</translation>
    </message>
    <message id="kFolderInPlaceReason">
        <source></source>
        <translation>yerinde bir klasör var</translation>
    </message>
    <message id="kFolderNotShownMessage">
        <source></source>
        <translation>“%1” klasörünü gösterecek bir program başlatılamadı.</translation>
    </message>
    <message id="kForeignRows">
        <source></source>
        <translation>Bu kanallar “%1” kaynağından. “%2” kaynağını görmek için aramayı ve türü temizleyin.</translation>
    </message>
    <message id="kGoneMessage">
        <source></source>
        <translation>“%1” artık yerinde değil.</translation>
    </message>
    <message id="kGoneText">
        <source></source>
        <translation>Dosya taşındı veya silindi ya da bulunduğu disk çıkarıldı. Buraya kaydederseniz orada yeni bir dosya oluşur; bir USB belleğe kaydetmek istiyorsanız önce belleği takın.</translation>
    </message>
    <message id="kHelpBack">
        <source></source>
        <translation>Geri</translation>
    </message>
    <message id="kHelpFind">
        <source></source>
        <translation>Bul</translation>
    </message>
    <message id="kHelpFindClose">
        <source></source>
        <translation>Arama çubuğunu kapat</translation>
    </message>
    <message id="kHelpFindCount">
        <source></source>
        <translation>Eşleşme %1 / %2</translation>
    </message>
    <message id="kHelpFindField">
        <source></source>
        <translation>Bu sayfada bul</translation>
    </message>
    <message id="kHelpFindNext">
        <source></source>
        <translation>Sonraki eşleşme</translation>
    </message>
    <message id="kHelpFindNone">
        <source></source>
        <translation>Bu sayfada bulunamadı</translation>
    </message>
    <message id="kHelpFindPrevious">
        <source></source>
        <translation>Önceki eşleşme</translation>
    </message>
    <message id="kHelpFindTip">
        <source></source>
        <translation>Bu sayfada bir sözcük bul</translation>
    </message>
    <message id="kHelpForward">
        <source></source>
        <translation>İleri</translation>
    </message>
    <message id="kHelpHome">
        <source></source>
        <translation>Başlangıç Sayfası</translation>
    </message>
    <message id="kHelpOpenInBrowser">
        <source></source>
        <translation>Tarayıcıda Aç</translation>
    </message>
    <message id="kHelpOpenInChrome">
        <source></source>
        <translation>Chrome’da Aç</translation>
    </message>
    <message id="kHelpToolbar">
        <source></source>
        <translation>Gezinme</translation>
    </message>
    <message id="kHintNoFile">
        <source></source>
        <translation>Açık kanal listesi yok</translation>
    </message>
    <message id="kHintNoFileDetail">
        <source></source>
        <translation>Televizyonunuzun TLL dosyasını bu pencereye bırakın veya bir dosya seçin.</translation>
    </message>
    <message id="kHintNoRadioStations">
        <source></source>
        <translation>Bu kaynakta radyo kanalı yok</translation>
    </message>
    <message id="kHintNoStations">
        <source></source>
        <translation>Kanal yok</translation>
    </message>
    <message id="kHintNoStationsDetail">
        <source></source>
        <translation>Bu dosyada kanal yok. Buraya başka bir TLL dosyası bırakabilirsiniz.</translation>
    </message>
    <message id="kHintNoTVStations">
        <source></source>
        <translation>Bu kaynakta TV kanalı yok</translation>
    </message>
    <message id="kHintOpen">
        <source></source>
        <translation>Dosya Aç…</translation>
    </message>
    <message id="kHintRadioNotShown">
        <source></source>
        <translation>Bu tür listelerin radyo kanalları gösterilmez</translation>
    </message>
    <message id="kHintRadioNotShownDetail">
        <source></source>
        <translation>Listede bulunanlar dosyada kalır.</translation>
    </message>
    <message id="kHintShowRadio">
        <source></source>
        <translation>Radyo kanallarını göster</translation>
    </message>
    <message id="kHintShowTV">
        <source></source>
        <translation>TV kanallarını göster</translation>
    </message>
    <message id="kHistoryCurrent">
        <source></source>
        <translation>Geçerli</translation>
    </message>
    <message id="kHistoryOldest">
        <source></source>
        <translation>Saklanan en eski adım</translation>
    </message>
    <message id="kHistorySaved">
        <source></source>
        <translation>%1 (kaydedildi)</translation>
    </message>
    <message id="kHistoryStart">
        <source></source>
        <translation>Açıldığı Hâliyle Liste</translation>
    </message>
    <message id="kHistoryTitle">
        <source></source>
        <translation>Geçmiş</translation>
    </message>
    <message id="kHistoryUndone">
        <source></source>
        <translation>Geri alındı</translation>
    </message>
    <message id="kImportByNames">
        <source></source>
        <translation>Tabloda “stationKey” sütunu yok: bazı kanallar yalnızca adından tanınır.</translation>
    </message>
    <message id="kImportByNumbers">
        <source></source>
        <translation>Hem numaralar hem satırların sırası değişmiş ve birbirini tutmuyor: numaralar geçerli.</translation>
    </message>
    <message id="kImportByRows">
        <source></source>
        <translation>Numaralar değişmemiş ama satırların sırası farklı: kanallar satırların sırasını alır.</translation>
    </message>
    <message id="kImportFailed">
        <source></source>
        <translation>“%1” içe aktarılamıyor. Liste olduğu gibi kalıyor.</translation>
    </message>
    <message id="kImportOtherList">
        <source></source>
        <translation>Satırlar bu dosyadaki başka bir listeye uyuyor: %1.</translation>
    </message>
    <message id="kImportRowsAlone">
        <source></source>
        <translation>Tabloda numara yok: kanallar satırların sırasını alır.</translation>
    </message>
    <message id="kImportTitle">
        <source></source>
        <translation>Tablodan Değişiklikleri İçe Aktar</translation>
    </message>
    <message id="kImportUnclear" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n satır belirsiz: anahtar ile ad birbirine uymuyor ya da bir kanal birden çok kez geçiyor.</numerusform>
        </translation>
    </message>
    <message id="kImportUnknownColumns">
        <source></source>
        <translation>Okunmayan sütunlar: %1.</translation>
    </message>
    <message id="kImportUntold" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Tablodaki %n satır bir kanal belirtmiyor.</numerusform>
        </translation>
    </message>
    <message id="kInfo">
        <source></source>
        <translation>&amp;Bilgi…</translation>
    </message>
    <message id="kInfoContent">
        <source></source>
        <translation>İçerik</translation>
    </message>
    <message id="kInfoField">
        <source></source>
        <translation>Alan</translation>
    </message>
    <message id="kInfoTable">
        <source></source>
        <translation>Kanalın alanları</translation>
    </message>
    <message id="kInfoTip">
        <source></source>
        <translation>Seçili kanalın tüm alanlarını göster</translation>
    </message>
    <message id="kInUseReason">
        <source></source>
        <translation>başka bir program onu kullanıyor</translation>
    </message>
    <message id="kIsAFolderReason">
        <source></source>
        <translation>“%1” bir klasör.</translation>
    </message>
    <message id="kKeepMine">
        <source></source>
        <translation>Benimkini Koru</translation>
    </message>
    <message id="kLanguageTitle">
        <source></source>
        <translation>Türkçe</translation>
    </message>
    <message id="kLater">
        <source></source>
        <translation>Daha Sonra</translation>
    </message>
    <message id="kLinkCircleReason">
        <source></source>
        <translation>Dosya bağlantısı kendisine geri dönüyor.</translation>
    </message>
    <message id="kLoadingProblem">
        <source></source>
        <translation>Kanal listesi açılamadı.</translation>
    </message>
    <message id="kMarkNone">
        <source></source>
        <translation>Buradan hiçbir şey devralınamaz</translation>
    </message>
    <message id="kMarkNotSet">
        <source></source>
        <translation>%1: işaretli değil</translation>
    </message>
    <message id="kMarkSet">
        <source></source>
        <translation>%1: işaretli</translation>
    </message>
    <message id="kMendedAmpersands" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Tek başına duran %n “&amp;” düzeltildi.</numerusform>
        </translation>
    </message>
    <message id="kMendedBrackets" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Tek başına duran %n “&lt;” düzeltildi.</numerusform>
        </translation>
    </message>
    <message id="kMendedControls" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n denetim karakteri kaldırıldı.</numerusform>
        </translation>
    </message>
    <message id="kMendedCut">
        <source></source>
        <translation>Son kanal yarım kalmıştı; ondan sağlam kalanlar korundu.</translation>
    </message>
    <message id="kMendedDropped">
        <source></source>
        <translation>Son kanal yarım kalmıştı ve dışarıda bırakılması gerekti.</translation>
    </message>
    <message id="kMendedEnd">
        <source></source>
        <translation>Dosyanın sonu eksikti ve eklendi.</translation>
    </message>
    <message id="kMendedStrays" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Listenin dışındaki %n metin parçası kaldırıldı.</numerusform>
        </translation>
    </message>
    <message id="kMendedTags" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Eksik veya yanlış %n etiket düzeltildi.</numerusform>
        </translation>
    </message>
    <message id="kMendedTitle">
        <source></source>
        <translation>Bu, “%1” dosyasının onarılmış bir kopyasıdır. Dosyanın kendisi olduğu gibi kalır.</translation>
    </message>
    <message id="kMenuAbout">
        <source></source>
        <translation>Quillet &amp;Hakkında</translation>
    </message>
    <message id="kMenuAlwaysRepair">
        <source></source>
        <translation>&amp;JSON Listelerini Onarılmış Olarak Kaydet</translation>
    </message>
    <message id="kMenuAnalogue">
        <source></source>
        <translation>Ana&amp;log</translation>
    </message>
    <message id="kMenuAntenna">
        <source></source>
        <translation>&amp;Anten</translation>
    </message>
    <message id="kMenuApplyOrder">
        <source></source>
        <translation>&amp;Sırayı Uygula…</translation>
    </message>
    <message id="kMenuArrange">
        <source></source>
        <translation>Sı&amp;rala…</translation>
    </message>
    <message id="kMenuCable">
        <source></source>
        <translation>&amp;Kablo</translation>
    </message>
    <message id="kMenuClose">
        <source></source>
        <translation>Ka&amp;pat</translation>
    </message>
    <message id="kMenuColumns">
        <source></source>
        <translation>&amp;Sütunlar</translation>
    </message>
    <message id="kMenuCompare">
        <source></source>
        <translation>Ş&amp;ununla Karşılaştır</translation>
    </message>
    <message id="kMenuCompareFile">
        <source></source>
        <translation>Başka &amp;Liste…</translation>
    </message>
    <message id="kMenuCompareRead">
        <source></source>
        <translation>Dosyanın &amp;Okunduğu Hâli</translation>
    </message>
    <message id="kMenuCopy">
        <source></source>
        <translation>Ko&amp;pyala</translation>
    </message>
    <message id="kMenuEdit">
        <source></source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message id="kMenuExport">
        <source></source>
        <translation>Referans Listesi Olarak Dışa Akta&amp;r…</translation>
    </message>
    <message id="kMenuExportList">
        <source></source>
        <translation>Başka &amp;Biçimde Dışa Aktar…</translation>
    </message>
    <message id="kMenuFile">
        <source></source>
        <translation>&amp;Dosya</translation>
    </message>
    <message id="kMenuFillGaps">
        <source></source>
        <translation>Boş&amp;lukları Doldur</translation>
    </message>
    <message id="kMenuFilterAll">
        <source></source>
        <translation>Tü&amp;m Türler</translation>
    </message>
    <message id="kMenuFilterHD">
        <source></source>
        <translation>&amp;HD</translation>
    </message>
    <message id="kMenuFilterOther">
        <source></source>
        <translation>Diğ&amp;er</translation>
    </message>
    <message id="kMenuFilterSD">
        <source></source>
        <translation>S&amp;D</translation>
    </message>
    <message id="kMenuFilterTV">
        <source></source>
        <translation>Yalnızca T&amp;V</translation>
    </message>
    <message id="kMenuFilterUHD">
        <source></source>
        <translation>&amp;UHD</translation>
    </message>
    <message id="kMenuFind">
        <source></source>
        <translation>B&amp;ul</translation>
    </message>
    <message id="kMenuFindNext">
        <source></source>
        <translation>&amp;Sonrakini Bul</translation>
    </message>
    <message id="kMenuFindPrevious">
        <source></source>
        <translation>Ö&amp;ncekini Bul</translation>
    </message>
    <message id="kMenuFindText">
        <source></source>
        <translation>&amp;Bul…</translation>
    </message>
    <message id="kMenuGuide">
        <source></source>
        <translation>Quillet &amp;Yardımı</translation>
    </message>
    <message id="kMenuHelp">
        <source></source>
        <translation>&amp;Yardım</translation>
    </message>
    <message id="kMenuHistory">
        <source></source>
        <translation>&amp;Geçmiş</translation>
    </message>
    <message id="kMenuImport">
        <source></source>
        <translation>D&amp;eğişiklikleri İçe Aktar…</translation>
    </message>
    <message id="kMenuInfo">
        <source></source>
        <translation>Kanal &amp;Bilgisi</translation>
    </message>
    <message id="kMenuLock">
        <source></source>
        <translation>Ço&amp;cuk Kilidi</translation>
    </message>
    <message id="kMenuMoveDown">
        <source></source>
        <translation>Aşağı &amp;Taşı</translation>
    </message>
    <message id="kMenuMoveTo">
        <source></source>
        <translation>&amp;Numaraya Taşı…</translation>
    </message>
    <message id="kMenuMoveToBottom">
        <source></source>
        <translation>En S&amp;ona Taşı</translation>
    </message>
    <message id="kMenuMoveToTop">
        <source></source>
        <translation>&amp;En Başa Taşı</translation>
    </message>
    <message id="kMenuMoveUp">
        <source></source>
        <translation>Yu&amp;karı Taşı</translation>
    </message>
    <message id="kMenuNew">
        <source></source>
        <translation>&amp;Yeni</translation>
    </message>
    <message id="kMenuOpen">
        <source></source>
        <translation>&amp;Aç…</translation>
    </message>
    <message id="kMenuOpenRecent">
        <source></source>
        <translation>&amp;Son Kullanılanlar</translation>
    </message>
    <message id="kMenuPaste">
        <source></source>
        <translation>Yapı&amp;ştır</translation>
    </message>
    <message id="kMenuPreferences">
        <source></source>
        <translation>Terci&amp;hler…</translation>
    </message>
    <message id="kMenuPrint">
        <source></source>
        <translation>Ya&amp;zdır…</translation>
    </message>
    <message id="kMenuPrintCompact">
        <source></source>
        <translation>K&amp;ompakt Yazdır…</translation>
    </message>
    <message id="kMenuQuit">
        <source></source>
        <translation>Çı&amp;kış</translation>
    </message>
    <message id="kMenuRadio">
        <source></source>
        <translation>&amp;Radyo Kanalları</translation>
    </message>
    <message id="kMenuRecoveryFolder">
        <source></source>
        <translation>Kurtarma Klasörü&amp;nü Aç</translation>
    </message>
    <message id="kMenuRedo">
        <source></source>
        <translation>&amp;Yinele</translation>
    </message>
    <message id="kMenuRedoStep">
        <source></source>
        <translation>&amp;Yinele: %1</translation>
    </message>
    <message id="kMenuReload">
        <source></source>
        <translation>D&amp;iskten Yeniden Yükle</translation>
    </message>
    <message id="kMenuRename">
        <source></source>
        <translation>Adını &amp;Değiştir</translation>
    </message>
    <message id="kMenuRevert">
        <source></source>
        <translation>Değişik&amp;likleri At</translation>
    </message>
    <message id="kMenuSample">
        <source></source>
        <translation>&amp;Bir Örnek Dene</translation>
    </message>
    <message id="kMenuSatellite">
        <source></source>
        <translation>U&amp;ydu</translation>
    </message>
    <message id="kMenuSave">
        <source></source>
        <translation>Kay&amp;det</translation>
    </message>
    <message id="kMenuSaveAs">
        <source></source>
        <translation>&amp;Farklı Kaydet…</translation>
    </message>
    <message id="kMenuSelect">
        <source></source>
        <translation>Seç&amp;im</translation>
    </message>
    <message id="kMenuSelectAll">
        <source></source>
        <translation>&amp;Tümü</translation>
    </message>
    <message id="kMenuSelectEncrypted">
        <source></source>
        <translation>Şi&amp;freliler</translation>
    </message>
    <message id="kMenuSelectInvert">
        <source></source>
        <translation>&amp;Seçimi Tersine Çevir</translation>
    </message>
    <message id="kMenuSelectNone">
        <source></source>
        <translation>&amp;Hiçbiri</translation>
    </message>
    <message id="kMenuSelectSameType">
        <source></source>
        <translation>&amp;Aynı Tür</translation>
    </message>
    <message id="kMenuSkip">
        <source></source>
        <translation>&amp;Atla</translation>
    </message>
    <message id="kMenuSwap">
        <source></source>
        <translation>Nu&amp;maraları Takas Et</translation>
    </message>
    <message id="kMenuTextLarger">
        <source></source>
        <translation>&amp;Büyüt</translation>
    </message>
    <message id="kMenuTextNormal">
        <source></source>
        <translation>&amp;Normal</translation>
    </message>
    <message id="kMenuTextSize">
        <source></source>
        <translation>Yazı B&amp;oyutu</translation>
    </message>
    <message id="kMenuTextSmaller">
        <source></source>
        <translation>&amp;Küçült</translation>
    </message>
    <message id="kMenuTV">
        <source></source>
        <translation>&amp;TV Kanalları</translation>
    </message>
    <message id="kMenuUndo">
        <source></source>
        <translation>&amp;Geri Al</translation>
    </message>
    <message id="kMenuUndoStep">
        <source></source>
        <translation>&amp;Geri Al: %1</translation>
    </message>
    <message id="kMenuUnsavedLists">
        <source></source>
        <translation>Kaydedilmemiş Lis&amp;teler…</translation>
    </message>
    <message id="kMenuVersions">
        <source></source>
        <translation>Önceki Sürü&amp;mler…</translation>
    </message>
    <message id="kMenuView">
        <source></source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message id="kMimeComment">
        <source></source>
        <translation>LG kanal listesi</translation>
    </message>
    <message id="kMoveTo">
        <source></source>
        <translation>&amp;Numaraya Taşı…</translation>
    </message>
    <message id="kMoveToTip">
        <source></source>
        <translation>Seçili kanallara yeni numaralar ver</translation>
    </message>
    <message id="kMovingMessage" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Seçimin taşınacağı numara (1–9999):</numerusform>
        </translation>
    </message>
    <message id="kMovingOK">
        <source></source>
        <translation>Taşı</translation>
    </message>
    <message id="kNameTakenReason">
        <source></source>
        <translation>bu adda bir dosya zaten var</translation>
    </message>
    <message id="kNameTooLongReason">
        <source></source>
        <translation>ad çok uzun</translation>
    </message>
    <message id="kNoAnswerReason">
        <source></source>
        <translation>disk veya ağ yanıt vermiyor</translation>
    </message>
    <message id="kNoMatches">
        <source></source>
        <translation>Aramaya ve türe uyan kanal yok.</translation>
    </message>
    <message id="kNoMemoryReason">
        <source></source>
        <translation>Bu liste için yeterli bellek yok. Başka programları kapatıp yeniden deneyin.</translation>
    </message>
    <message id="kNoSuchPageReason">
        <source></source>
        <translation>Listede seçilen sayfalardan hiçbiri yok.</translation>
    </message>
    <message id="kNotAFileReason">
        <source></source>
        <translation>“%1” sıradan bir dosya değil.</translation>
    </message>
    <message id="kNotAllowedReason">
        <source></source>
        <translation>bunun için izniniz yok</translation>
    </message>
    <message id="kNotALocalFileReason">
        <source></source>
        <translation>Yalnızca bu bilgisayardaki dosyalar açılabilir.</translation>
    </message>
    <message id="kNoticeBeyond" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Numaralar yetmedi: %1 numarasında bitiyorlar ve numarası yinelenen %n kanala boş numara verilemedi. Kaydedilirse küçük numarayla ve radyo olarak kalır.</numerusform>
        </translation>
    </message>
    <message id="kNoticeBinary">
        <source></source>
        <translation>Kanal bulunamadı, çünkü bu bir TLL metin dosyasına değil, ikili bir listeye benziyor.</translation>
    </message>
    <message id="kNoticeClose">
        <source></source>
        <translation>Bu bildirimi kapat</translation>
    </message>
    <message id="kNoticeDamaged">
        <source></source>
        <translation>Dosya %1. satırda, “%2” kanalından sonra hasarlı.</translation>
    </message>
    <message id="kNoticeDamagedFirst">
        <source></source>
        <translation>Dosya %1. satırda, ilk tam kanaldan önce hasarlı.</translation>
    </message>
    <message id="kNoticeDamagedLine">
        <source></source>
        <translation>Dosya %1. satırda hasarlı.</translation>
    </message>
    <message id="kNoticeDeclaration">
        <source></source>
        <translation>Dosya %1 kodlamasını bildiriyor, ama harfleri UTF-8. Quillet ikisini de olduğu gibi bırakır; bildirime güvenen bir televizyon aksanlı harfleri yanlış gösterir.</translation>
    </message>
    <message id="kNoticeFileChanged">
        <source></source>
        <translation>“%1” başka bir program tarafından değiştirildi. “Benimkini Koru” ile liste buradaki gibi kalır ve bir sonraki kaydetme dosyanın üzerine yazar.</translation>
    </message>
    <message id="kNoticeFileGone">
        <source></source>
        <translation>“%1” artık yerinde değil: taşındı, adı değiştirildi veya silindi ya da diski çıkarıldı. Liste hâlâ bu pencerede; başka bir yere kaydedebilirsiniz.</translation>
    </message>
    <message id="kNoticeFileUnreadable">
        <source></source>
        <translation>“%1” artık okunamıyor. %2 Liste hâlâ bu pencerede; başka bir yere kaydedebilirsiniz.</translation>
    </message>
    <message id="kNoticeJSON">
        <source></source>
        <translation>Kanal bulunamadı, çünkü kanalları içeren JSON metninin kodu çözülemedi (satır %1, sütun %2).</translation>
    </message>
    <message id="kNoticeJSONCut">
        <source></source>
        <translation>Kanal bulunamadı, çünkü kanalları içeren JSON metni tam değil.</translation>
    </message>
    <message id="kNoticeLatin1">
        <source></source>
        <translation>Dosya geçerli UTF-8 değil ve Latin-1 olarak çözüldü. Kaydedildiğinde dosya UTF-8 olarak yazılır ve dosyadaki bütün aksanlı harfler değişir.</translation>
    </message>
    <message id="kNoticeLimit">
        <source></source>
        <translation>Dosya %1. satırdan itibaren okunmadı: orada herhangi bir televizyon listesinde bulunandan daha fazla alan, öznitelik veya iç içe öğe var.</translation>
    </message>
    <message id="kNoticeNoXML">
        <source></source>
        <translation>Kanal bulunamadı, çünkü bu başka türden bir metin; bir TLL dosyası değil.</translation>
    </message>
    <message id="kNoticeReadOnly">
        <source></source>
        <translation>Bu dosya değiştirilemez: kendisi, klasörü veya diski yazmaya karşı korumalı. Değişikliklerinizi korumak için bir kopyasını kaydedin; “Kaydet” bunu önerir.</translation>
    </message>
    <message id="kNoticeUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Bundan sonraki %n kanal (&lt;ITEM&gt;) okunmadı; bu listeyi kaydetmek onların kaybına yol açar.</numerusform>
        </translation>
    </message>
    <message id="kNoticeUnreadEnd">
        <source></source>
        <translation>Devamı okunmadı.</translation>
    </message>
    <message id="kNotKeptAccessList">
        <source></source>
        <translation>tek tek kullanıcıların ve grupların hakları</translation>
    </message>
    <message id="kNotKeptAttributes">
        <source></source>
        <translation>genişletilmiş öznitelikleri</translation>
    </message>
    <message id="kNotKeptGroup">
        <source></source>
        <translation>grubu</translation>
    </message>
    <message id="kNotKeptHardLinks">
        <source></source>
        <translation>eski listeyi göstermeye devam eden öteki adları</translation>
    </message>
    <message id="kNotKeptOwner">
        <source></source>
        <translation>sahibi</translation>
    </message>
    <message id="kNotKeptPermissions">
        <source></source>
        <translation>bazı izinleri</translation>
    </message>
    <message id="kNotSupportedReason">
        <source></source>
        <translation>disk buna veya bu ada izin vermiyor</translation>
    </message>
    <message id="kNotThereReason">
        <source></source>
        <translation>dosya veya klasörü yerinde değil</translation>
    </message>
    <message id="kOK">
        <source></source>
        <translation>Tamam</translation>
    </message>
    <message id="kOpen">
        <source></source>
        <translation>Aç</translation>
    </message>
    <message id="kOpenElsewhereReason">
        <source></source>
        <translation>Bu dosya başka bir pencerede açık. Başka bir ad veya klasör seçin.</translation>
    </message>
    <message id="kOpenFailedMessage">
        <source></source>
        <translation>“%1” açılamadı.</translation>
    </message>
    <message id="kOpenRepairedCopy">
        <source></source>
        <translation>Onarılmış Kopyayı Aç</translation>
    </message>
    <message id="kOpenTitle">
        <source></source>
        <translation>Kanal Listesi Aç</translation>
    </message>
    <message id="kOrderEmpty">
        <source></source>
        <translation>“%1” uygulanabilecek bir sıra içermiyor.</translation>
    </message>
    <message id="kOrderIsChannelList">
        <source></source>
        <translation>Bu, dışa aktarılmış olanlar gibi tam bir kanal listesidir. Sırasını almak için adını .tll ile bitirin.</translation>
    </message>
    <message id="kOrderJSON">
        <source></source>
        <translation>Bu, kanallarını JSON olarak tutan türden bir listedir. Buradaki kimlikler sayıdır ve başka listelerin kanalları bunlarla bulunmaz.</translation>
    </message>
    <message id="kOrderLines">
        <source></source>
        <translation>Bu dosyada bu biçimdeki satırlar: %1. Diğer satırlar: %2.</translation>
    </message>
    <message id="kOrderNoIdentifiers">
        <source></source>
        <translation>Kanallar özgün ağ, taşıma akışı ve hizmet kimlikleriyle tanınır; bu dosyadaki hiçbir kanalda bu üç kimlik ile bir ad birlikte bulunmuyor.</translation>
    </message>
    <message id="kOrderNoLines">
        <source></source>
        <translation>Bir metin dosyasında “101;Sample TV;1-10-300” biçiminde en az üç satır ve en çok iki başka satır bulunmalıdır.</translation>
    </message>
    <message id="kOrderNoRadioStations">
        <source></source>
        <translation>İçinde radyo kanalı yok.</translation>
    </message>
    <message id="kOrderNoTVStations">
        <source></source>
        <translation>İçinde TV kanalı yok.</translation>
    </message>
    <message id="kOrderWrongType">
        <source></source>
        <translation>Sıra TLL dosyalarından ve metin dosyalarından (.txt) alınabilir.</translation>
    </message>
    <message id="kOtherReason">
        <source></source>
        <translation>sistem %1 numaralı hatayı bildiriyor</translation>
    </message>
    <message id="kOutOfMemoryReason">
        <source></source>
        <translation>yeterli bellek yok</translation>
    </message>
    <message id="kOwnFileReason">
        <source></source>
        <translation>Bu, listenin kendi dosyasıdır; dışa aktarma onun yerine asla yazmaz. Başka bir ad veya klasör seçin.</translation>
    </message>
    <message id="kPackageAdvice">
        <source></source>
        <translation>Değiştirilmiş bir dosyayı televizyonunuza aktarmadan önce özgün dosyanın bir kopyasını saklayın.</translation>
    </message>
    <message id="kPackageExchange">
        <source></source>
        <translation>Listeleri hesap tablolarıyla alıp verin ve yazdırın</translation>
    </message>
    <message id="kPackageMoves">
        <source></source>
        <translation>Kanalları sürükleyerek, yazarak ya da tuşlarla, boşluklu veya boşluksuz bir numaraya taşıyın</translation>
    </message>
    <message id="kPackageOrder">
        <source></source>
        <translation>Eski bir televizyonun sırasını yenisine aktarın ve iki listeyi kanal kanal karşılaştırın</translation>
    </message>
    <message id="kPackagePictureCompare">
        <source></source>
        <translation>Kanal kanal karşılaştırılan iki liste</translation>
    </message>
    <message id="kPackagePictureWindow">
        <source></source>
        <translation>Penceresinde bir kanal listesi</translation>
    </message>
    <message id="kPackagePurpose">
        <source></source>
        <translation>Quillet, bir LG televizyonun kanal listesini bilgisayarınızda sıralar. Televizyon kanallarını bir USB belleğe TLL dosyası olarak aktarır; yüzlerce kanalı istediğiniz sıraya koyarsınız ve televizyon dosyayı geri alır.</translation>
    </message>
    <message id="kPackageRelease010">
        <source></source>
        <translation>İlk sürüm.</translation>
    </message>
    <message id="kPackageSafety">
        <source></source>
        <translation>Her adımı geri alın, çökmeden sonra kaydedilmemiş değişiklikleri geri getirin, bir dosyanın önceki sürümlerine dönün</translation>
    </message>
    <message id="kPackageTool">
        <source></source>
        <translation>quillet-cli aracıyla listeleri betiklerde düzenleyin ve Git’te saklayın</translation>
    </message>
    <message id="kPageOf">
        <source></source>
        <translation>Sayfa %1 / %2</translation>
    </message>
    <message id="kPasteUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Panodaki %n satır bir kanal belirtmiyor.</numerusform>
        </translation>
    </message>
    <message id="kPermissionsFailedReason">
        <source></source>
        <translation>Dosyanın erişim izinleri korunamadı: %1.</translation>
    </message>
    <message id="kPrefColumns">
        <source></source>
        <translation>Sütunların türü:</translation>
    </message>
    <message id="kPrefGeneral">
        <source></source>
        <translation>Genel</translation>
    </message>
    <message id="kPrefJSONLists">
        <source></source>
        <translation>JSON listeleri</translation>
    </message>
    <message id="kPrefKeepChanges">
        <source></source>
        <translation>Çökmeden sonra geri getirmek için sakla</translation>
    </message>
    <message id="kPrefKeepChangesNote">
        <source></source>
        <translation>Kapalıyken çökme olursa kaydedilmemiş değişiklikler kaybolur. Önceden saklananlar, liste kaydedilene veya kapatılana kadar kalır.</translation>
    </message>
    <message id="kPrefKeepVersions">
        <source></source>
        <translation>Kaydederken yerine yazılanı sakla</translation>
    </message>
    <message id="kPrefLanguage">
        <source></source>
        <translation>Dil:</translation>
    </message>
    <message id="kPrefLanguageNote">
        <source></source>
        <translation>Quillet bir sonraki başlatılışında bu dili kullanır.</translation>
    </message>
    <message id="kPrefLanguageSystem">
        <source></source>
        <translation>Sistemle aynı</translation>
    </message>
    <message id="kPrefPercent">
        <source></source>
        <translation>%%1</translation>
    </message>
    <message id="kPrefQuestions">
        <source></source>
        <translation>Sorular</translation>
    </message>
    <message id="kPrefQuestionsNote">
        <source></source>
        <translation>Yalnızca hiçbir şey kaybolmuyorsa. Quillet; değişiklikler, kanallar veya başkalarının dosyaya yazdıkları kaybolmadan önce her zaman sorar.</translation>
    </message>
    <message id="kPrefRepairJSON">
        <source></source>
        <translation>JSON listelerini sormadan onarılmış olarak kaydet</translation>
    </message>
    <message id="kPrefSaving">
        <source></source>
        <translation>Kaydetme</translation>
    </message>
    <message id="kPrefShowFolder">
        <source></source>
        <translation>Klasörü Göster</translation>
    </message>
    <message id="kPrefTable">
        <source></source>
        <translation>Tablo</translation>
    </message>
    <message id="kPrefTextSize">
        <source></source>
        <translation>Yazı boyutu:</translation>
    </message>
    <message id="kPrefTitle">
        <source></source>
        <translation>Tercihler</translation>
    </message>
    <message id="kPrefUnsaved">
        <source></source>
        <translation>Kaydedilmemiş değişiklikler</translation>
    </message>
    <message id="kPrefUsual">
        <source></source>
        <translation>Varsayılanlara Döndür</translation>
    </message>
    <message id="kPrefVersionCount">
        <source></source>
        <translation>Her dosya için, ilkinin dışında:</translation>
    </message>
    <message id="kPrefVersions">
        <source></source>
        <translation>Önceki sürümler</translation>
    </message>
    <message id="kPrefVersionsNote">
        <source></source>
        <translation>Her dosyanın ilk sürümü her zaman kalır. Sınırlar aşılırsa bir sonraki kaydetmede en eskileri silinir. Kapatmak hiçbir şeyi silmez. quillet‑cli de bu ayarlara uyar.</translation>
    </message>
    <message id="kPrefVersionSpace">
        <source></source>
        <translation>Tümü için alan:</translation>
    </message>
    <message id="kPrefVersionsUsed">
        <source></source>
        <translation>Kullanılan: %1.</translation>
    </message>
    <message id="kPrefXMLLists">
        <source></source>
        <translation>XML listeleri</translation>
    </message>
    <message id="kPreviewAnew">
        <source></source>
        <translation>Önizleme bu arada değişti; bu yenisidir.</translation>
    </message>
    <message id="kPreviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n numara birden çok kez verilir.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledTable" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Tabloda %n numara birden çok kez verilmiş.</numerusform>
        </translation>
    </message>
    <message id="kPreviewDoubledThere" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Orada %n numara birden çok kez verilmiş.</numerusform>
        </translation>
    </message>
    <message id="kPreviewHidden" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Buna gösterilmeyen, işaretli %n satır dahildir.</numerusform>
        </translation>
    </message>
    <message id="kPreviewLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n çocuk kilidi değişir</numerusform>
        </translation>
    </message>
    <message id="kPreviewMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal başka numara veya yer alır</numerusform>
        </translation>
    </message>
    <message id="kPreviewNoneInCommon">
        <source></source>
        <translation>İki listenin ortak kanalı yok.</translation>
    </message>
    <message id="kPreviewNothing">
        <source></source>
        <translation>Hiçbir şey değişmez.</translation>
    </message>
    <message id="kPreviewOrder">
        <source></source>
        <translation>Önizleme…</translation>
    </message>
    <message id="kPreviewOrderCounts">
        <source></source>
        <translation>Bulunan kanallar: %1. Sona gidenler: %2. Hiçbir kanala uymayan girişler: %3.</translation>
    </message>
    <message id="kPreviewPaste" numerus="yes">
        <source></source>
        <translation>
            <numerusform>İşaretli %n kanal, şimdi “%2” kanalının bulunduğu %1 numarasına taşınır.</numerusform>
        </translation>
    </message>
    <message id="kPreviewPasteNone">
        <source></source>
        <translation>Hiçbir şey taşınamaz: satırların hiçbiri gösterilen listedeki bir kanala uymuyor.</translation>
    </message>
    <message id="kPreviewPasteUnchecked">
        <source></source>
        <translation>Hiçbir satır işaretli değil: taşınacak kanalları işaretleyin.</translation>
    </message>
    <message id="kPreviewRenamed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanalın adı değişir</numerusform>
        </translation>
    </message>
    <message id="kPreviewSelected">
        <source></source>
        <translation>Yalnızca seçilenler: %1</translation>
    </message>
    <message id="kPreviewSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n atlama işareti değişir</numerusform>
        </translation>
    </message>
    <message id="kPreviewSorted">
        <source></source>
        <translation>Liste numara sırasına konur.</translation>
    </message>
    <message id="kPreviewToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Numarası alınan %n kanal sona gider: %1.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnfit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n satır hiçbir kanala uymuyor.</numerusform>
        </translation>
    </message>
    <message id="kPreviewUnsure" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Kesin olmayan veya başka listeden olan %n satır işaretli değil.</numerusform>
        </translation>
    </message>
    <message id="kPrintedFiltered">
        <source></source>
        <translation>yalnızca %1</translation>
    </message>
    <message id="kPrintedRadio">
        <source></source>
        <translation>Radyo kanalları, %1</translation>
    </message>
    <message id="kPrintedSearch">
        <source></source>
        <translation>“%1”</translation>
    </message>
    <message id="kPrintedTV">
        <source></source>
        <translation>TV kanalları, %1</translation>
    </message>
    <message id="kPrintFailedMessage">
        <source></source>
        <translation>“%1” yazdırılamadı.</translation>
    </message>
    <message id="kPrintFailedReason">
        <source></source>
        <translation>Yazıcı veya dosya açılamadı ya da bütün sayfaları almadı.</translation>
    </message>
    <message id="kPrintTitle">
        <source></source>
        <translation>Dosyaya Yazdır</translation>
    </message>
    <message id="kPrintToFileFailedMessage">
        <source></source>
        <translation>Liste “%1” dosyasına yazdırılamadı.</translation>
    </message>
    <message id="kPutBack">
        <source></source>
        <translation>Geri Getir</translation>
    </message>
    <message id="kPutBackFailed">
        <source></source>
        <translation>Sürüm geri getirilemedi.</translation>
    </message>
    <message id="kPutBackOthers">
        <source></source>
        <translation>Kanalları şu anda listede olanlarla birebir aynı değil; yalnızca açılabilir.</translation>
    </message>
    <message id="kPutBackSame">
        <source></source>
        <translation>Liste şu anda o zamanki gibi.</translation>
    </message>
    <message id="kPutBackText">
        <source></source>
        <translation>Geri getirmek, geri alınabilen tek bir adımdır; hiçbir şey kaydedilmez.</translation>
    </message>
    <message id="kQuotaReason">
        <source></source>
        <translation>disk kotanız doldu</translation>
    </message>
    <message id="kRadio">
        <source></source>
        <translation>&amp;Radyo</translation>
    </message>
    <message id="kReadBackFailedReason">
        <source></source>
        <translation>Yeni dosya denetlenemedi. %1</translation>
    </message>
    <message id="kReadOnlyDiskReason">
        <source></source>
        <translation>disk yazmaya karşı korumalı</translation>
    </message>
    <message id="kRecentFileMissingMessage">
        <source></source>
        <translation>%1 artık yerinde değil.</translation>
    </message>
    <message id="kRecentLists">
        <source></source>
        <translation>Son kullanılan listeler</translation>
    </message>
    <message id="kRecoveryChanges">
        <source></source>
        <translation>Değişiklikler</translation>
    </message>
    <message id="kRecoveryDamagedReason">
        <source></source>
        <translation>Değişikliklerden saklananlar hasarlı.</translation>
    </message>
    <message id="kRecoveryFailedMessage">
        <source></source>
        <translation>Her şey geri getirilemedi.</translation>
    </message>
    <message id="kRecoveryFolder">
        <source></source>
        <translation>Klasör</translation>
    </message>
    <message id="kRecoveryName">
        <source></source>
        <translation>Ad</translation>
    </message>
    <message id="kRecoveryNewerReason">
        <source></source>
        <translation>Değişiklikler programın daha yeni bir sürümü tarafından saklandı.</translation>
    </message>
    <message id="kRecoveryOlderReason">
        <source></source>
        <translation>Bu, az önce geri getirilen bir listenin daha eski hâli. Saklanmaya devam ediyor: atın ya da öteki kapandıktan sonra geri getirin.</translation>
    </message>
    <message id="kRecoveryOpenReason">
        <source></source>
        <translation>Liste bir pencerede açık ve orada değiştirilmiş. Önce o değişiklikleri kaydedin veya atın.</translation>
    </message>
    <message id="kRecoveryOriginalAt">
        <source></source>
        <translation>Listenin değişikliklerden önceki hâli burada: %1</translation>
    </message>
    <message id="kRecoveryText">
        <source></source>
        <translation>Program, bu değişiklikler kaydedilmeden sona erdi. Değişiklikler saklandı ve geri getirilebilir.</translation>
    </message>
    <message id="kRecoveryTime">
        <source></source>
        <translation>Son Değişiklik</translation>
    </message>
    <message id="kRecoveryTitle">
        <source></source>
        <translation>Kaydedilmemiş Listeler</translation>
    </message>
    <message id="kRecoveryUnreadable">
        <source></source>
        <translation>Okunamıyor</translation>
    </message>
    <message id="kReload">
        <source></source>
        <translation>Yeniden Yükle</translation>
    </message>
    <message id="kReloadMessage">
        <source></source>
        <translation>“%1” diskten yeniden okunsun mu?</translation>
    </message>
    <message id="kReloadText">
        <source></source>
        <translation>Kaydetmediğiniz değişiklikler kaybolur.</translation>
    </message>
    <message id="kRemoveFromList">
        <source></source>
        <translation>Listeden Kaldır</translation>
    </message>
    <message id="kReplaceDetail">
        <source></source>
        <translation>Gösterilmeyen listelerde kaydedilmemiş değişiklikler var. Bırakılan dosya burada açılırsa bu değişiklikler kaybolur.</translation>
    </message>
    <message id="kReplaceFailedReason">
        <source></source>
        <translation>Yeni dosya eskisinin yerini alamadı: %1.</translation>
    </message>
    <message id="kReplaceMessage">
        <source></source>
        <translation>“%1” kanal listesinin yerine bırakılan dosya açılsın mı?</translation>
    </message>
    <message id="kRevertFailedMessage">
        <source></source>
        <translation>“%1” yeniden okunamadı. Bu penceredeki liste olduğu gibi kalır.</translation>
    </message>
    <message id="kRevertMessage">
        <source></source>
        <translation>“%1” dosyasının son kaydedilen sürümüne dönmek istiyor musunuz?</translation>
    </message>
    <message id="kRevertText">
        <source></source>
        <translation>O zamandan beri yaptığınız tüm değişiklikler kaybolur.</translation>
    </message>
    <message id="kReviewAlways">
        <source></source>
        <translation>Bu türdeki (JSON) tüm listeleri sormadan onarılmış olarak kaydet</translation>
    </message>
    <message id="kReviewChanged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal verilerinin bir bölümünü kaybeder: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewDoubled" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal iki kez yer alır: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewEncoding">
        <source></source>
        <translation>Aksanlı harfler UTF-8 olarak yazılır; dosyanın bildirdiği kodlama ise bu değil.</translation>
    </message>
    <message id="kReviewExport">
        <source></source>
        <translation>Dışa aktarmanın tek biçimi budur. Kendi dosyanız olduğu gibi kalır.</translation>
    </message>
    <message id="kReviewExtras">
        <source></source>
        <translation>Kanallar arasındaki notlar veya ek bilgiler kaybolur.</translation>
    </message>
    <message id="kReviewing">
        <source></source>
        <translation>“%1” kaydedilirken hiçbir şeyin kaybolmadığı denetleniyor…</translation>
    </message>
    <message id="kReviewMessage">
        <source></source>
        <translation>“%1” kaydedilirse bir şeyler kaybolur.</translation>
    </message>
    <message id="kReviewMissing" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal eksik olur: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewNoRepair">
        <source></source>
        <translation>Bu dosyayı daha az kayıpla yazmanın yolu yok. Kaydetmeden önce eski dosyanın bir kopyasını saklayın.</translation>
    </message>
    <message id="kReviewNumbers" numerus="yes">
        <source></source>
        <translation>
            <numerusform>JSON listesinin %n sayısı veya yinelenen değeri farklı yazılır ya da kaybolur.</numerusform>
        </translation>
    </message>
    <message id="kReviewRefused">
        <source></source>
        <translation>Kaydedilen dosya yeniden açılamaz.</translation>
    </message>
    <message id="kReviewRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal başka bir numara alır: %1</numerusform>
        </translation>
    </message>
    <message id="kReviewRepair">
        <source></source>
        <translation>“Onarılmış Olarak Kaydet” hiçbir şey kaybettirmez: değişiklikleriniz yazılır, geri kalan her şey okunduğu gibi kalır.</translation>
    </message>
    <message id="kReviewRepairPartly">
        <source></source>
        <translation>“Onarılmış Olarak Kaydet” değişikliklerinizi yazar ve geri kalan her şeyi okunduğu gibi bırakır; yine de:</translation>
    </message>
    <message id="kReviewSurroundings">
        <source></source>
        <translation>Televizyonun kanallardan önce veya sonra sakladıkları kaybolur.</translation>
    </message>
    <message id="kReviewTail">
        <source></source>
        <translation>Dosyanın hasarlı bir yerinden sonra gelen her şey kaybolur.</translation>
    </message>
    <message id="kReviewUnread" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Dosyanın hasarlı bir yerinden sonra gelen %n kanal hiç okunmadı ve kaybolur.</numerusform>
        </translation>
    </message>
    <message id="kRowByName">
        <source></source>
        <translation>adıyla bulundu</translation>
    </message>
    <message id="kRowDoubled">
        <source></source>
        <translation>birden çok kez geçiyor</translation>
    </message>
    <message id="kRowElsewhere">
        <source></source>
        <translation>orada başka bir listede</translation>
    </message>
    <message id="kRowFields">
        <source></source>
        <translation>başka bilgiler</translation>
    </message>
    <message id="kRowFitsNothing">
        <source></source>
        <translation>hiçbir kanala uymuyor</translation>
    </message>
    <message id="kRowLockedHere">
        <source></source>
        <translation>orada kilitli değil</translation>
    </message>
    <message id="kRowLockedThere">
        <source></source>
        <translation>orada kilitli</translation>
    </message>
    <message id="kRowLoose">
        <source></source>
        <translation>kesin değil: adı benziyor</translation>
    </message>
    <message id="kRowMoved">
        <source></source>
        <translation>başka numara</translation>
    </message>
    <message id="kRowOnlyHere">
        <source></source>
        <translation>yalnızca burada</translation>
    </message>
    <message id="kRowOnlyThere">
        <source></source>
        <translation>yalnızca orada</translation>
    </message>
    <message id="kRowRenamed">
        <source></source>
        <translation>başka ad</translation>
    </message>
    <message id="kRowSkippedHere">
        <source></source>
        <translation>orada atlanmıyor</translation>
    </message>
    <message id="kRowSkippedThere">
        <source></source>
        <translation>orada atlanıyor</translation>
    </message>
    <message id="kRowToTheEnd">
        <source></source>
        <translation>sona gider</translation>
    </message>
    <message id="kRowUnsure">
        <source></source>
        <translation>kesin değil</translation>
    </message>
    <message id="kSampleName">
        <source></source>
        <translation>Örnek liste</translation>
    </message>
    <message id="kSatellite">
        <source></source>
        <translation>Uydu</translation>
    </message>
    <message id="kSave">
        <source></source>
        <translation>Kaydet</translation>
    </message>
    <message id="kSaveAnyway">
        <source></source>
        <translation>Yine de Kaydet</translation>
    </message>
    <message id="kSaveAs">
        <source></source>
        <translation>Farklı Kaydet…</translation>
    </message>
    <message id="kSaveAsTitle">
        <source></source>
        <translation>Kanal Listesini Farklı Kaydet</translation>
    </message>
    <message id="kSaveChangesMessage">
        <source></source>
        <translation>“%1” dosyasındaki değişiklikleri kaydetmek istiyor musunuz?</translation>
    </message>
    <message id="kSaveChangesText">
        <source></source>
        <translation>Kaydetmezseniz değişiklikleriniz kaybolur.</translation>
    </message>
    <message id="kSaveCopy">
        <source></source>
        <translation>Kopyasını Kaydet…</translation>
    </message>
    <message id="kSaveCopyTitle">
        <source></source>
        <translation>Kopyasını Kaydet</translation>
    </message>
    <message id="kSaveFailedMessage">
        <source></source>
        <translation>“%1” kaydedilemedi. Diskteki dosya değiştirilmedi.</translation>
    </message>
    <message id="kSaveGoneMessage">
        <source></source>
        <translation>“%1” artık yerinde değil. Listeyi başka bir yere kaydetmek istiyor musunuz?</translation>
    </message>
    <message id="kSaveGoneText">
        <source></source>
        <translation>Dosya taşındı, adı değiştirildi veya silindi. Silindiyse liste yalnızca bu pencerede bulunuyor.</translation>
    </message>
    <message id="kSaveHereAnyway">
        <source></source>
        <translation>Yine de Buraya Kaydet</translation>
    </message>
    <message id="kSaveRepaired">
        <source></source>
        <translation>Onarılmış Olarak Kaydet</translation>
    </message>
    <message id="kSaveTitle">
        <source></source>
        <translation>Kanal Listesini Kaydet</translation>
    </message>
    <message id="kSaveUnkept">
        <source></source>
        <translation>Saklamadan Kaydet</translation>
    </message>
    <message id="kSaveWithout" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kanal Olmadan Kaydet</numerusform>
        </translation>
    </message>
    <message id="kSearchPlaceholder">
        <source></source>
        <translation>Kanal adı</translation>
    </message>
    <message id="kSearchTitle">
        <source></source>
        <translation>&amp;Ara:</translation>
    </message>
    <message id="kSeparatorComma">
        <source></source>
        <translation>Virgül</translation>
    </message>
    <message id="kSeparatorSemicolon">
        <source></source>
        <translation>Noktalı virgül</translation>
    </message>
    <message id="kSeparatorTab">
        <source></source>
        <translation>Sekme</translation>
    </message>
    <message id="kSortStatistics">
        <source></source>
        <translation>Eşleşen kanal: %1
Eşleşmeyen kanal: %2
Bunların devam ettiği numara: %3</translation>
    </message>
    <message id="kSortTitle">
        <source></source>
        <translation>“%1” dosyasının sırası uygulandı.</translation>
    </message>
    <message id="kSource">
        <source></source>
        <translation>Kaynak</translation>
    </message>
    <message id="kStartGuide">
        <source></source>
        <translation>Adım Adım: Televizyondan ve Geri</translation>
    </message>
    <message id="kStartHow">
        <source></source>
        <translation>Bir tane edinmek için televizyona bir USB bellek takın ve ayarlarında, kanal ayarları arasında, kanal listesini USB’ye kopyalayan veya dışa aktaran bir öğe arayın. Sonra belleği bu bilgisayara takın, dosyanın bir kopyasını alın ve kopyayı açın.</translation>
    </message>
    <message id="kStartWhat">
        <source></source>
        <translation>TLL dosyası nedir?</translation>
    </message>
    <message id="kStartWhatText">
        <source></source>
        <translation>Bir televizyonun kanal listesidir: kanalları ve numaraları. Televizyon listeyi bir USB belleğe yazar, siz burada düzenlersiniz, sonra televizyon onu yeniden okur.</translation>
    </message>
    <message id="kStations" numerus="yes">
        <source></source>
        <translation>
            <numerusform>kanal</numerusform>
        </translation>
    </message>
    <message id="kStationTable">
        <source></source>
        <translation>Kanallar</translation>
    </message>
    <message id="kStepArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kanalı Sıralama</numerusform>
        </translation>
    </message>
    <message id="kStepClosedGaps">
        <source></source>
        <translation>Boşlukları Doldurma</translation>
    </message>
    <message id="kStepImported">
        <source></source>
        <translation>“%1” İçe Aktarımı</translation>
    </message>
    <message id="kStepLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kanalı Kilitleme</numerusform>
        </translation>
    </message>
    <message id="kStepMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kanalı Taşıma</numerusform>
        </translation>
    </message>
    <message id="kStepOrdered">
        <source></source>
        <translation>%1 Sırası</translation>
    </message>
    <message id="kStepPutBack">
        <source></source>
        <translation>%1 Sürümü</translation>
    </message>
    <message id="kStepRenamed">
        <source></source>
        <translation>Adını “%1” Olarak Değiştirme</translation>
    </message>
    <message id="kStepSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kanalı Atlama</numerusform>
        </translation>
    </message>
    <message id="kStepSwapped">
        <source></source>
        <translation>Numaraları Takas Etme</translation>
    </message>
    <message id="kStepTakenOver">
        <source></source>
        <translation>“%1” Listesinden Devralma</translation>
    </message>
    <message id="kStepUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kanalın Kilidini Açma</numerusform>
        </translation>
    </message>
    <message id="kStepUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n Kanalı Artık Atlamama</numerusform>
        </translation>
    </message>
    <message id="kTakeLocked">
        <source></source>
        <translation>Çocuk kilitleri</translation>
    </message>
    <message id="kTakeNames">
        <source></source>
        <translation>Adlar</translation>
    </message>
    <message id="kTakeNumbers">
        <source></source>
        <translation>Numaralar ve sıra</translation>
    </message>
    <message id="kTakeOver">
        <source></source>
        <translation>Devral:</translation>
    </message>
    <message id="kTakeOverAll">
        <source></source>
        <translation>Tümünü Devral</translation>
    </message>
    <message id="kTakeOverSelected">
        <source></source>
        <translation>Seçilenleri Devral</translation>
    </message>
    <message id="kTakeSkipped">
        <source></source>
        <translation>Atlama işaretleri</translation>
    </message>
    <message id="kTipAtBottom">
        <source></source>
        <translation>Seçili kanallar zaten en sonda</translation>
    </message>
    <message id="kTipAtTop">
        <source></source>
        <translation>Seçili kanallar zaten en başta</translation>
    </message>
    <message id="kTipColumnAlwaysShown">
        <source></source>
        <translation>Bu sütun her zaman gösterilir</translation>
    </message>
    <message id="kTipColumnNotTold">
        <source></source>
        <translation>Dosya bunu bu listedeki hiçbir kanal için belirtmiyor</translation>
    </message>
    <message id="kTipColumnsUsual">
        <source></source>
        <translation>Sütunlar zaten olağan sütunlar</translation>
    </message>
    <message id="kTipExportKeys">
        <source></source>
        <translation>İçe aktarırken kanallar, sıraları ve numaraları ne olursa olsun bu sütundan tanınır</translation>
    </message>
    <message id="kTipFilterTVOnly">
        <source></source>
        <translation>Türler yalnızca TV kanalları için seçilebilir</translation>
    </message>
    <message id="kTipForeign">
        <source></source>
        <translation>Gösterilen kanallar başka bir kaynaktan; önce aramayı ve türü temizleyin</translation>
    </message>
    <message id="kTipNoFile">
        <source></source>
        <translation>Diskte yeniden okunacak bir dosya yok</translation>
    </message>
    <message id="kTipNoneEncrypted">
        <source></source>
        <translation>Dosya hiçbir kanalın şifreli olduğunu belirtmiyor</translation>
    </message>
    <message id="kTipNoRow">
        <source></source>
        <translation>Seçili satır yok.</translation>
    </message>
    <message id="kTipNoStations">
        <source></source>
        <translation>Kanal içeren bir liste açın veya kanal içeren bir kaynak seçin</translation>
    </message>
    <message id="kTipNoStationsInSource">
        <source></source>
        <translation>Bu kaynaktan kanallar içeren bir dosya açın</translation>
    </message>
    <message id="kTipNoSteps">
        <source></source>
        <translation>Bu yönde başka adım yok</translation>
    </message>
    <message id="kTipNothingToPaste">
        <source></source>
        <translation>Panoda kanalları belirten satır yok</translation>
    </message>
    <message id="kTipNotRead">
        <source></source>
        <translation>Liste bir dosyadan okunmadı</translation>
    </message>
    <message id="kTipNotTold">
        <source></source>
        <translation>Dosya bu kanallar için bunu belirtmiyor</translation>
    </message>
    <message id="kTipNoVersions">
        <source></source>
        <translation>Bir dosyanın üzerine her kaydettiğinizde önceki sürümü saklanır; bu listenin henüz sürümü yok</translation>
    </message>
    <message id="kTipPrefUsual">
        <source></source>
        <translation>Bu sayfada zaten varsayılanlar geçerli</translation>
    </message>
    <message id="kTipRenameAnalogue">
        <source></source>
        <translation>Adlar yalnızca analog listede değiştirilebilir</translation>
    </message>
    <message id="kTipSearchFirst">
        <source></source>
        <translation>Önce arama alanına bir şey yazın</translation>
    </message>
    <message id="kTipSelectFirst">
        <source></source>
        <translation>Önce listeden kanal seçin</translation>
    </message>
    <message id="kTipSelectTwo">
        <source></source>
        <translation>Önce tam iki kanal seçin</translation>
    </message>
    <message id="kTipTakeNothing">
        <source></source>
        <translation>Seçilen satırlardan devralınabilecek bir şey yok.</translation>
    </message>
    <message id="kTipTakeSelected">
        <source></source>
        <translation>Seçilen satırların hiçbiri işaretli değil.</translation>
    </message>
    <message id="kTipTooFew">
        <source></source>
        <translation>Sıralamak için yeterli kanal yok</translation>
    </message>
    <message id="kTipVersionsOff">
        <source></source>
        <translation>Önceki sürümlerin saklanması tercihlerde kapatılmış</translation>
    </message>
    <message id="kTipVersionStations">
        <source></source>
        <translation>Dosyanın tamamında: TV ve radyo, bütün kaynaklar</translation>
    </message>
    <message id="kToldArranged" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal artık başka bir yerde</numerusform>
        </translation>
    </message>
    <message id="kToldBroughtBack">
        <source></source>
        <translation>“%1” dosyasındaki değişiklikler geri geldi, ama henüz kaydedilmedi</translation>
    </message>
    <message id="kToldClosedGaps" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Boşluklar dolduruldu: %n numara değişti</numerusform>
        </translation>
    </message>
    <message id="kToldExported">
        <source></source>
        <translation>%1 dosyasına tam bir kanal listesi olarak dışa aktarıldı.</translation>
    </message>
    <message id="kToldExportedList">
        <source></source>
        <translation>%1 dosyasına dışa aktarıldı.</translation>
    </message>
    <message id="kToldForeign">
        <source></source>
        <translation>Hiçbir şey değişmedi: satırlar hâlâ “%1” kaynağının, oysa “%2” seçili</translation>
    </message>
    <message id="kToldImported" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal “%1” dosyasına göre değiştirildi</numerusform>
        </translation>
    </message>
    <message id="kToldLocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal kilitlendi</numerusform>
        </translation>
    </message>
    <message id="kToldMoved" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal %1 numarasına taşındı</numerusform>
        </translation>
    </message>
    <message id="kToldMovedDown" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal aşağı taşındı</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToBottom" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal en sona taşındı</numerusform>
        </translation>
    </message>
    <message id="kToldMovedToTop" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal en başa taşındı</numerusform>
        </translation>
    </message>
    <message id="kToldMovedUp" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal yukarı taşındı</numerusform>
        </translation>
    </message>
    <message id="kToldNotExported">
        <source></source>
        <translation>Hiçbir şey yazılmadı: bu listeyle ilgili bir soru hâlâ açık</translation>
    </message>
    <message id="kToldNotFound">
        <source></source>
        <translation>Listede adında “%1” geçen kanal yok</translation>
    </message>
    <message id="kToldNotKept">
        <source></source>
        <translation>“%1” kaydedildi, ama dosya şunları kaybetti: %2.</translation>
    </message>
    <message id="kToldNotKeptSafe">
        <source></source>
        <translation>“%1” dosyasındaki değişiklikler bir çökmede kaybolur, çünkü ayrıca saklanamıyorlar: %2</translation>
    </message>
    <message id="kToldNotMoved">
        <source></source>
        <translation>Hiçbir şey taşınmadı: numara 1 ile %1 arasında olmalıdır</translation>
    </message>
    <message id="kToldNotTakenOver">
        <source></source>
        <translation>Hiçbir şey devralınmadı: liste bu arada değişti</translation>
    </message>
    <message id="kToldOrdered">
        <source></source>
        <translation>“%1” sırası uygulandı</translation>
    </message>
    <message id="kToldOthersDropped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Yalnızca “%1” alındı: bu pencere tek liste içerir. %n dosya daha bırakıldı</numerusform>
        </translation>
    </message>
    <message id="kToldOthersRenumbered" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n başka numara değişti</numerusform>
        </translation>
    </message>
    <message id="kToldOthersToTheEnd" numerus="yes">
        <source></source>
        <translation>
            <numerusform>başka %n kanal sona taşındı</numerusform>
        </translation>
    </message>
    <message id="kToldPasteGone">
        <source></source>
        <translation>Hiçbir şey taşınmadı: kanallar ya da taşınacakları satır artık gösterilen listede değil</translation>
    </message>
    <message id="kToldPasteThere">
        <source></source>
        <translation>Hiçbir şey taşınmadı: kanallar zaten orada</translation>
    </message>
    <message id="kToldPrinted">
        <source></source>
        <translation>%1 dosyasına yazdırıldı.</translation>
    </message>
    <message id="kToldPutBack">
        <source></source>
        <translation>%1 sürümü geri getirildi</translation>
    </message>
    <message id="kToldRedone">
        <source></source>
        <translation>Yinelendi: %1</translation>
    </message>
    <message id="kToldReloaded">
        <source></source>
        <translation>“%1” diskten yeniden okundu</translation>
    </message>
    <message id="kToldRenamed">
        <source></source>
        <translation>Kanalın adı “%1” olarak değiştirildi</translation>
    </message>
    <message id="kToldRepaired">
        <source></source>
        <translation>Seçtiğiniz gibi onarılmış olarak kaydedildi: hiçbir şey kaybolmadı.</translation>
    </message>
    <message id="kToldReverted">
        <source></source>
        <translation>“%1” son kaydedildiği gibi</translation>
    </message>
    <message id="kToldSample">
        <source></source>
        <translation>Bu liste denemeler için uydurulmuştur. Dosyalarınızın hiçbiri değiştirilmez.</translation>
    </message>
    <message id="kToldSaved">
        <source></source>
        <translation>%1 olarak kaydedildi.</translation>
    </message>
    <message id="kToldSkipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal atlanacak</numerusform>
        </translation>
    </message>
    <message id="kToldSwapped">
        <source></source>
        <translation>%1 ve %2 numaralı kanallar numaralarını takas etti</translation>
    </message>
    <message id="kToldTakenOver" numerus="yes">
        <source></source>
        <translation>
            <numerusform>“%1” listesinden %n kanal devralındı</numerusform>
        </translation>
    </message>
    <message id="kToldUnchanged">
        <source></source>
        <translation>“%1” diskte değişmedi</translation>
    </message>
    <message id="kToldUndone">
        <source></source>
        <translation>Geri alındı: %1</translation>
    </message>
    <message id="kToldUnlocked" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanalın kilidi açıldı</numerusform>
        </translation>
    </message>
    <message id="kToldUnskipped" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n kanal artık atlanmayacak</numerusform>
        </translation>
    </message>
    <message id="kToldWentTo">
        <source></source>
        <translation>Geçmişin başka bir adımına gidildi</translation>
    </message>
    <message id="kTooLargeForDiskReason">
        <source></source>
        <translation>dosya orada izin verilenden büyük</translation>
    </message>
    <message id="kTooManyOpenReason">
        <source></source>
        <translation>çok fazla dosya açık</translation>
    </message>
    <message id="kTrySample">
        <source></source>
        <translation>Bir Örnek Dene</translation>
    </message>
    <message id="kTV">
        <source></source>
        <translation>&amp;TV</translation>
    </message>
    <message id="kTypeFilter">
        <source></source>
        <translation>Tür</translation>
    </message>
    <message id="kUndoLink">
        <source></source>
        <translation>Geri Al</translation>
    </message>
    <message id="kUnkeptMessage">
        <source></source>
        <translation>“%1” dosyasının üzerine yazılacak sürümü saklanamadı.</translation>
    </message>
    <message id="kUnkeptText">
        <source></source>
        <translation>Kaydettiğinizde kalıcı olarak üzerine yazılır: “%1” içinde saklanan önceki sürümler arasında yer almaz.</translation>
    </message>
    <message id="kUnreadableMessage">
        <source></source>
        <translation>“%1” dosyasının yerinde şimdi bulunan şey okunamıyor.</translation>
    </message>
    <message id="kUnreadableText">
        <source></source>
        <translation>Dosyayı başka bir programın değiştirip değiştirmediği bilinemiyor. Şimdi kaydederseniz orada bulunan kaybolur.</translation>
    </message>
    <message id="kUnsureMessage">
        <source></source>
        <translation>“%1” yazıldı, ancak disk dosyanın güvenle saklandığını onaylamıyor.</translation>
    </message>
    <message id="kUnsureText">
        <source></source>
        <translation>Liste değiştirilmiş olarak işaretli kalır. Yeniden kaydedin veya başka bir diske bir kopya kaydedin.</translation>
    </message>
    <message id="kUntitled">
        <source></source>
        <translation>Adsız</translation>
    </message>
    <message id="kUntoldReason">
        <source></source>
        <translation>sistem bir neden belirtmiyor</translation>
    </message>
    <message id="kUntouchedReason">
        <source></source>
        <translation>Hasarlı dosya olduğu gibi bırakılır. Başka bir ad veya klasör seçin.</translation>
    </message>
    <message id="kUsualColumns">
        <source></source>
        <translation>Olağan Sütunlar</translation>
    </message>
    <message id="kVersionCompare">
        <source></source>
        <translation>Karşılaştır…</translation>
    </message>
    <message id="kVersionDamaged">
        <source></source>
        <translation>Hasarlı veya eksik; artık okunamıyor</translation>
    </message>
    <message id="kVersionDamagedReason">
        <source></source>
        <translation>Bu sürüm hasarlı: artık saklanan içerik değil.</translation>
    </message>
    <message id="kVersionDifference">
        <source></source>
        <translation>Şimdikine Göre</translation>
    </message>
    <message id="kVersionFirst">
        <source></source>
        <translation>%1 (ilk sürüm)</translation>
    </message>
    <message id="kVersionNoList">
        <source></source>
        <translation>İçinden kanal listesi okunamıyor</translation>
    </message>
    <message id="kVersionOpen">
        <source></source>
        <translation>Aç</translation>
    </message>
    <message id="kVersionReading">
        <source></source>
        <translation>Karşılaştırılıyor…</translation>
    </message>
    <message id="kVersionsIntro">
        <source></source>
        <translation>“%1” dosyasının üzerine kaydedilmeden önceki içeriği:</translation>
    </message>
    <message id="kVersionSize">
        <source></source>
        <translation>Boyut</translation>
    </message>
    <message id="kVersionsLockedReason">
        <source></source>
        <translation>Başka bir program “%1” içinde çok uzun süredir bir sürüm saklıyor.</translation>
    </message>
    <message id="kVersionStations">
        <source></source>
        <translation>Tüm Kanallar</translation>
    </message>
    <message id="kVersionsTitle">
        <source></source>
        <translation>Önceki Sürümler</translation>
    </message>
    <message id="kVersionsUnreadableReason">
        <source></source>
        <translation>Bu dosyadan “%1” içinde saklanmış olanlar şu anda okunamıyor.</translation>
    </message>
    <message id="kVersionTime">
        <source></source>
        <translation>Son Değişiklik</translation>
    </message>
    <message id="kVersionTimeUnknown">
        <source></source>
        <translation>Bilinmiyor</translation>
    </message>
    <message id="kWriteFailedReason">
        <source></source>
        <translation>Disk, dosyanın tamamını almadı: %1.</translation>
    </message>
    <message id="kWriteProtectedReason">
        <source></source>
        <translation>“%1” yazmaya karşı korumalı.</translation>
    </message>
    <message id="matches" numerus="yes">
        <source></source>
        <translation>
            <numerusform>eşleşme</numerusform>
        </translation>
    </message>
</context>
</TS>
