<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>%1 veya %2 olmalıdır</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>beklenmeyen argüman</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>bilinmeyen seçenek %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 için bir değer gerekir</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 değer almaz</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1, %2 ile birlikte kullanılamaz</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>“%1 --help” komutunu deneyin.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 için %2 gerekir</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>standart çıktıya yazılamıyor</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>satır çok uzun</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>satır UTF-8 değil</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>satır boş</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>soru sorulacak uçbirim yok</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>kesildi</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>0.1 ile 3600 saniye arasında olmalıdır</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>kopya sayısı %1 ile %2 arasında olmalıdır</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>öncelik %1 ile %2 arasında olmalıdır</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>saniye sayısı %1 ile %2 arasında olmalıdır</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 iki kez verilmiş</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>sunucu bu süre boyunca sessiz kalırsa vazgeçer (öntanımlı: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>bu metni veya sürümü yazar</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Kullanım: %1 [SEÇENEK]... [DOSYA]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>alışılmış yazdırma komutundaki gibi</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>İş, yazıcıda bekletilmiyor. Önce “Bekletme” seçeneğini açın.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Hızlı dosyalamanın PIN kodu yoktur.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Yalnızca özel bir klasörün adı olmalıdır. Önce “Özel klasör” seçeneğini seçin.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Yalnızca özel veya korumalı bir klasörün PIN kodu vardır.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Bu yazıcı sizi oturum açma adınızla değil, kullanıcı numaranızla tanır.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Bu değer kilitli ve bu yazıcı için hatırlanıyor. Değiştirmek için asma kilidi açın.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Rakamları gizle</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Rakamları göster</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Yazıcı seçme</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Listeden bir yazıcı seçin. Liste uzunsa yazıcı adının bir bölümünü yazıp Enter tuşuna basın. Listenin altındaki satır, yazıcının hazır olup olmadığını gösterir.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Sayfaların bir bölümünü yazdırma</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>“Seçili sayfalar” seçeneğini seçin ve sayfa numaralarını veya aralıklarını girin; örneğin 1-3, 5. Bir aralık açık bırakılabilir: 5- ifadesi 5. sayfayı ve sonraki tüm sayfaları yazdırır.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>İki yüze de yazdırma</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Kitap gibi çevrilen sayfalar için “Uzun kenar”, not defteri gibi çevrilen sayfalar için “Kısa kenar” seçeneğini seçin.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Neyin yazdırılacağını görme</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Ön izleme, kâğıt yaprakları yazıcıdan çıkacakları gibi gösterir. Sayfaları altındaki oklarla veya Page Up ve Page Down tuşlarıyla çevirin, Ctrl ve fare tekerleğiyle büyütün.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Sayfaları PDF dosyası olarak kaydetme</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Bir işi yazıcıda PIN koduyla bekletme</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>“İş yönetimi” altında “Bekletme” seçeneğini açın ve en çok 8 rakamlı bir PIN kodu girin. İş, birisi yazıcıda PIN kodunu girene kadar yazıcıda bekler. “Yazdırdıktan sonra beklet” işi yazdırıldıktan sonra da saklar. “Örnek baskı” bir kopya yazdırır ve diğerlerini bekletir.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Kim olduğunuzu belirtme</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Bazı yazıcılar kimin yazdırdığını sorar. “Kullanıcı ve hesap” altında kullanıcı numaranızı veya oturum açma adınızı ve parolanızı girin.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Bir değeri yeniden kullanma</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Bir değerin yanındaki asma kilidi kapatın. Değer bu yazıcı için hatırlanır. Değiştirmek için asma kilidi açın.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Yazıcıda klasör seçme</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Ayarları ön ayar olarak kaydetme</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>“Ön ayarlar” düğmesine basın ve “Ön ayar olarak kaydet” seçeneğini seçin. Ayarları yeniden kullanmak için ön ayarı oradan seçin. PIN kodları yalnızca dâhil ederseniz kaydedilir.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Başkalarının bir işte neleri gördüğünü öğrenme</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Bir işi iptal etme</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Klavyeyi kullanma</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt ve altı çizili bir harf bir denetime; Alt, Shift ve harf onun yanındaki asma kilide gider. Enter yazdırır, Escape iptal eder, F1 bu yardımı açar. Ctrl+R, imleç PIN kodundayken kodun rakamlarını gösterir.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Yazdırma yardımı</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Bir yaprağa birkaç sayfa yazdırma</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>“Düzen” altında yaprak başına sayfa sayısını, sayfaların sırasını ve bir kenarlık seçin. Kitapçık yapan bir yazıcıda “Kitapçık”, sayfaları katlanmış yapraklar kitap gibi okunabilecek biçimde düzenler.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Sayfaları kâğıda sığdırma</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>“Düzen” altında “Ölçek”, kâğıttan büyük veya küçük sayfalara ne olacağını belirler. “Kâğıda sığdır” onları bütün olarak gösterir, “Kâğıdı doldur” kenar boşluğu bırakmaz ve kenarları kesebilir, “Gerçek boyut” olduğu gibi bırakır. “Özel” yüzdesi görüntüler için geçerlidir.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Ne zaman yazdırılacağını seçme</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>“İş” altında “Yazdır”, işi yazdırma sunucusunda bir saate kadar veya “Beklemede” seçiliyse siz sistemin yazdırma işleri listesinden serbest bırakana kadar bekletir. Bekleyen işlerden önceliği en yüksek olan önce yazdırılır.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Kapak sayfaları ve faturalama bilgisi ekleme</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>“İş” altında belgeden önce veya sonra yazdırılacak bir kapak sayfası seçin. Proje numarası gibi faturalama bilgisi, işle birlikte yazdırma sunucusunun kayıtlarında saklanır.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Yazıcının başka bir seçeneğini bulma</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>“Diğer seçenekler” yazıcının tüm diğer seçeneklerini içerir. Yalnızca bir adı içeren seçenekleri görmek için süzgece adın bir bölümünü yazın.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Yazıcı listesinde “PDF olarak kaydet” seçeneğini seçin ve “Kaydet” düğmesine basın. Dosya, seçtiğiniz sayfaları içerir. Yalnızca PDF belgeleri kaydedilebilir; yalnızca sayfaları ve sayfaların sırası seçilebilir.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Parolayla korunan bir belgeyi yazdırma</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>“Yazdır” düğmesine bastığınızda pencere belgenin parolasını sorar. Parolasız, yalnızca sizin okuyabildiğiniz ve sonra silinen bir kopya yazdırır.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>“İş yönetimi” altında “Bekletme” seçeneğini açın. “Belge dosyalama” altında “Özel klasör” seçeneğini seçin ve bir klasör adı girin. “Klasör adlarını al” yazıcıya klasörlerini sorar; böylece listeden birini seçebilirsiniz.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Özette “Bu işi kim görebilir?” düğmesine basın. Yanıt, yazdırma sunucusunun bir işin hangi ayrıntılarını diğer kullanıcılara gösterdiğini ve bunların nasıl gizleneceğini belirtir.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>İş gönderilirken “İptal” düğmesine basın. Pencere işi izlerken “İşi iptal et” düğmesine basın; “Yeniden yazdır” başarısız olan bir işi bir kez daha gönderir. Pencere kapandıktan sonra sistemin yazdırma işleri listesini kullanın.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Kopyalar</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Harmanla</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Ters sırada</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Sayfalar</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Yalnızca yazdır</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Kâğıt boyutu</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Çift taraflı</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Renk</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kalite</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Kâğıt kaynağı</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Kâğıt türü</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Çıktı tepsisi</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Zımbalama</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Delme</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Katlama</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Yönelim</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Yaprak başına sayfa</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Kitapçık</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Sayfa sırası</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Kenarlık</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Ölçek</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Öncelik</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Faturalama bilgisi</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Kapak sayfaları</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Çözünürlük</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Uzun kenar</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kısa kenar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Tüm sayfalar</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Tek sayfalar</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Çift sayfalar</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Dikey</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Yatay</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Ters yatay</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Ters dikey</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Soldan sağa, yukarıdan aşağıya</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Soldan sağa, aşağıdan yukarıya</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Sağdan sola, yukarıdan aşağıya</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Sağdan sola, aşağıdan yukarıya</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Yukarıdan aşağıya, soldan sağa</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Yukarıdan aşağıya, sağdan sola</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Aşağıdan yukarıya, soldan sağa</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Aşağıdan yukarıya, sağdan sola</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Tek çizgi</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Kalın tek çizgi</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Çift çizgi</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Kalın çift çizgi</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Kâğıda sığdır</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Gerçek boyut</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Kâğıdı doldur</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Şimdi</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Düşük</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Yüksek</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Acil</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standart</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Tasnif dışı</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Tasnifli</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Gizli</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Çok gizli</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Özel %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Özel %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%%1</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Saat %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>%1 üzerine çift taraflı yazdırılamaz.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 “%2”, %3 “%4” ile birlikte kullanılamaz.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Çift taraflıyı kapat</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1: %2 yap</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Sayfalar %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 kopya</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n kopya</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Sayfa numaralarını veya aralıklarını girin; örneğin 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Belge %1. sayfada bitiyor. En çok %1 olan sayfa numaraları girin.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Geçerli sayfa</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Seçim</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Sonlandırma</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: bu yazıcı bunu sunmuyor</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>bu yazıcı kimin yazdırdığını sormuyor</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1: %2 olabilir</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>en çok %n rakam</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>en çok %n karakter</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1, --folder quick ile birlikte kullanılamaz</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 için --folder NAME gerekir</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 için PIN kodlu veya özel bir klasörün --folder NAME seçeneği gerekir</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 bir kullanıcı numarasıyla birlikte kullanılamaz</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN kodu</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>bekletilen işin PIN kodu</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main veya bir klasörün adı</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Klasörün PIN kodu</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>klasörün PIN kodu</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>oturum açma adı</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>oturum açma adının parolası</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>oturum açma yerine kullanıcı numarası</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>hesap numarası</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>yazıcıdaki kullanıcı adı</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>yazıcıdaki iş adı</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>kullanıcı numarası eksik; %1 ile belirtin</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>oturum açma adı eksik; %1 ile belirtin</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p ile -q, -w ile -m aynıdır; diğerleri etkisizdir</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>iş gönderilmeyen yerde bir kuyruğun yerine geçer</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>işin ayarlarını yazar ve bir şey göndermez; yalnızca --remember, --forget veya --save-preset ile isteneni saklar</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>ayarlar yerine panelin özetini yazar</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>kuyrukları veya iş yönetimi sunanları ve ağdaki yazıcıları listeler</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>yazıcının klasörlerini alır, hatırlar ve listeler</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>sunucunun diğer kullanıcılarının bir işin seçeneklerinden ne gördüğünü ve nasıl gizleneceğini gösterir</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>iş yazdırılana veya yazıcıda bekletilene kadar işin durumunu yazar; olmazsa 1 ile, SECONDS sonunda hâlâ bekliyorsa 4 ile biter</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON yazar</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>sunucunun veya yazıcının istediği parola</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>işi bekletir: yazdırmadan, yazdırdıktan sonra veya bir örnekten sonra</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>işi bekletmez</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>X değerini (pin, folder-pin, password) bir dosyanın veya standart girdinin (“-”) ilk satırından alır ya da uçbirimde sorar: diğer kullanıcılar komut satırını görebilir</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>X değerlerini bu kuyruğun sonraki işleri için hatırlar</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>artık hatırlamaz</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>bu kuyruğun bir ön ayarıyla başlar</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>ayarları ön ayar olarak kaydeder; PIN kodlarını yalnızca --with-codes ile</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>yalnızca bunu yapar, -d veya --ppd için</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Dosyaları veya standart girdiyi bir yazıcının iş yönetimiyle yazdırır.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Çıkış kodu: 0 tamam, 1 başarısız, 2 yanlış kullanım, 3 panel reddetti, 4 bekliyor.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>artık beklenmiyor: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>ağda</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>hazır</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>durduruldu</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>yazdırıyor</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>iş kabul etmiyor</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 iş</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n iş</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>bu yazıcının klasör listesi yok</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>yazıcının adresi bilinmiyor; --address ile belirtin</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>“%1” bir adres değil</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: diğer kullanıcılar bir işin hiçbir seçeneğini görmez.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: diğer kullanıcılar bir işten şunları görür: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Bir yönetici bunları cupsd.conf dosyasında, yazıcının ilkesinde gizler:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Bir yönetici bunları cupsd.conf dosyasında, &lt;Policy %1&gt; içinde gizler:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>kilitli</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder etkisizdir: bu yazıcı belge dosyalamaz</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>değerler hatırlanamıyor: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>iş gönderildi, ama: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>ham (raw) bir iş sürücüyü ve onunla birlikte iş yönetimini atlar</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>“%1” yazıcısı iş yönetimi sunmuyor</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m yok sayılıyor: yeni bir işle kullanılır</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>uyarı: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i zaten gönderilmiş bir işi değiştirir; dosya belirtmeyin</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i bir işi bulunduğu yerde değiştirir; -d ve --ppd belirtmeyin</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i zaten gönderilmiş bir işin iş yönetimini değiştiremez</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait için yazdırılacak bir iş gerekir</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>bir liste, bir işin seçenekleriyle birlikte kullanılamaz</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>yazıcı belirtilmedi; -d veya --ppd ile belirtin</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd için --dry-run veya --folders gerekir</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>standart girdiden yalnızca bir değer okunabilir</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>boş olmamalıdır</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>18:30 (UTC) gibi bir saat, hold, immediate, resume, restart veya yazdırma sunucusunun evening gibi bir anahtar sözcüğü olmalıdır</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>12 veya QUEUE-12 gibi bir iş olmalıdır</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 yok sayılıyor: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS’ta form yok</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS’ta kip yok; -o kullanın</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>karakter kümesi her zaman UTF-8’dir</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>yazdırma sunucusu türü tanır; -o document-format=TYPE kullanın</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember ve --forget ikisi birden %1 değerini belirtemez</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>yalnızca birini kullanın: -i, --dry-run, --list, --folders, --check, --list-presets, --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Parola yanlış. %2 için %1 parolası</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>%2 için %1 parolası</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; --server-password-file ile belirtin</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>%1. belge gönderiliyor: %2 MiB, %%3</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>%1. belge gönderiliyor: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>gönderilmiş bir işi değiştirir: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>dosyadaki parola, ağdaki bir yazıcı olan ve yazdırma sunucusunda ayarlanmamış “%1” yazıcısına gönderilmez</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>“%1” yazdırma sunucusunda ayarlanmamış; ağdaki yazıcı kullanılıyor: %2</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1:</source>
        <comment>a label</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>PrintTexts</name>
    <message>
        <source>no printer is available</source>
        <translation>kullanılabilir yazıcı yok</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 yazılamıyor</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>bu bölümü açar</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>pencerenin resmini kaydeder ve çıkar</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>başlatmanın ne kadar sürdüğünü yazar ve çıkar</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Dosyalar veya standart girdi için yazdırma penceresini gösterir.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Çıkış kodu: 0 gönderildi, 1 gönderilmedi, 2 yanlış kullanım.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Bağlanıyor</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Kapak açık</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Sürücü yok</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Geliştirici bitti</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Geliştirici azaldı</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Kapı açık</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Çok sıcak</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Isınıyor</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Yeni işleri bekletiyor</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Kâğıt tepsisi yok</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Mürekkep veya toner bitti</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Mürekkep veya toner azaldı</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Atık toner kutusu dolmak üzere</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Atık toner kutusu dolu</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Kâğıt bitti</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Kâğıt sıkışması</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Kâğıt azaldı</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Kâğıt gerekli</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Duraklatılıyor</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Çevrimdışı</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Tambur bitti</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Tambur bitmek üzere</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>İlgilenilmesi gerekiyor</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Çıktı tepsisi dolmak üzere</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Çıktı tepsisi dolu</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Çıktı tepsisi yok</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Yazıcı belleği dolu</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Kısmen durduruldu</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Durduruluyor</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Yanıt vermiyor</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Toner bitti</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Toner azaldı</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executive</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloid</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Yarım US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Kartpostal (Japonya)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Çift kartpostal (Japonya)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Monarch zarf</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>%1 zarf</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>%1 numaralı zarf</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Ana tepsi</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Alternatif tepsi</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kaset</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Kaset %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Tepsi %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Elle besleme</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Çok amaçlı tepsi</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Zarf besleyici</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Elle zarf besleme</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Yüksek kapasiteli tepsi</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Üst tepsi</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Orta tepsi</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Alt tepsi</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Sol tepsi</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Sağ tepsi</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Yan tepsi</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Arka tepsi</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Merkez tepsi</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotoğraf tepsisi</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Disk tepsisi</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Kartpostal tepsisi</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Kâğıt rulosu</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Alternatif kâğıt rulosu</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rulo %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Düz kâğıt</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Antetli kâğıt</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Ön baskılı kâğıt</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Delikli kâğıt</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Geri dönüştürülmüş kâğıt</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bond kâğıdı</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Ağır kâğıt</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Hafif kâğıt</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Kaplamalı kâğıt</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Mürekkep püskürtmeli kâğıt</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Kaliteli kâğıt</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Renkli kâğıt</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Pamuklu kâğıt</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Asetat</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Zarf</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketler</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotoğraf kâğıdı</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Fotoğraf kâğıdı, parlak</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Fotoğraf kâğıdı, çok parlak</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Fotoğraf kâğıdı, yarı parlak</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Fotoğraf kâğıdı, saten</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Fotoğraf kâğıdı, mat</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Sürekli form kâğıdı</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Sekmeli kâğıt</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disk</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Üst çıktı tepsisi</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Orta çıktı tepsisi</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Alt çıktı tepsisi</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Sol çıktı tepsisi</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Sağ çıktı tepsisi</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Merkez çıktı tepsisi</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Yan çıktı tepsisi</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Arka çıktı tepsisi</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Baskılı yüz yukarı</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Baskılı yüz aşağı</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>İstifleyici %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>İstifleyici</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Posta kutusu %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Posta kutum</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Renkli</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Siyah beyaz</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Yalnızca siyah, grisiz</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Taslak</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Yüksek</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Zımbala</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>İki zımba</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Üç zımba</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Kenar dikişi</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Tel dikiş</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Kitapçık</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>İki delik</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Üç delik</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Dört delik</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Çok delik</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Ciltle</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Kırp</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Kapak ekle</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>İşleri kaydır</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Lamine et</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Katla</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Ortadan katla</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Mektup katlama</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z katlama</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Yarım Z katlama</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Akordeon katlama</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Pencere katlama</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Çift pencere katlama</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Paralel katlama</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>sol üst</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>sol alt</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>sağ üst</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>sağ alt</translation>
    </message>
    <message>
        <source>left</source>
        <translation>sol</translation>
    </message>
    <message>
        <source>top</source>
        <translation>üst</translation>
    </message>
    <message>
        <source>right</source>
        <translation>sağ</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alt</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, kenarlıksız</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Önde kapak sayfası</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Sonda kapak sayfası</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Parola gerekli</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>%1 yazıcısı parolanızı istiyor.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>%1 yazdırma sunucusu parolanızı istiyor.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Yanlış kullanıcı adı veya parola. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Etki alanı:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Kullanıcı adı:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>İş gönderiliyor</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 okunamıyor: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 bir klasör. Bir dosya seçin.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1, yazdırılabilecek en büyük boyut olan %2 sınırını aşıyor.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 yazdırmak için kopyalanamıyor: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 boş. Yazdırılacak bir şey yok.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Belge</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 ve %n dosya daha</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Belgede sayfa yok. Yazdırılacak bir şey yok.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Ön izleme yok. Görmek için cups paketini kurun.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Belgenin dönüştürülmesi çok uzun sürdüğünden ön izleme yok.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Bu belge türü için ön izleme yok.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Belge parolayla korunuyor. Yazdırmak için parolayı girin.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Belge hasarlı ve gösterilemiyor. Yazıcı onu yazdıramayabilir.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Belge hasarlı. Bir bölümü eksik olabilir.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>Seç…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Belge seç</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Belge açılamıyor. Açmak için qpdf paketini kurun.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Belgenin açılması çok uzun sürüyor.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Belgenin bir kopyası için yeterli alan yok.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Belge hasarlı ve açılamıyor.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Yanlış parola. Bir kez daha deneyebilirsiniz.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Yanlış parola. %n kez daha deneyebilirsiniz.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>%1 yazdırma sunucusunun aranması çok uzun sürdü</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>%1 adlı yazdırma sunucusu yok</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>%1 yazdırma sunucusuna şifreli bağlanılamıyor</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>%1 yazdırma sunucusuna bağlanılamıyor. Çalışıyor mu?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>%1 yazdırma sunucusu belgeyi okumayı bıraktı</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>yazdırma sunucusunun yanıtı eksik</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>yazdırma sunucusunun yanıtı çok büyük</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>%1 yazdırma sunucusu %2 sn içinde yanıt vermedi</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>%1 yazdırma sunucusu bağlantıyı kapattı</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>%1 yazdırma sunucusu başka bir adrese yönlendirdi (HTTP durumu %2); yönlendirmeler izlenmez</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>%1 yazdırma sunucusu parola istiyor</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>%1 yazdırma sunucusunun yanıtı: %2 (HTTP durumu %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>yazdırma sunucusunun yanıtı okunamıyor</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>işin seçenekleri</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>kullanıcı adı</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>işin adı</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>PIN kodunun özeti</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>PIN kodu</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>iş saati</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>klasörün PIN kodu</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>klasör</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>kullanıcı numarası</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>hesap numarası</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>yazdırma sunucusu işe numara vermedi</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>“%1” üzerinde iş oluşturulamıyor: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>%1-%2 işi iptal edilemiyor: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>yazdırma sunucusunun yanıtı işi içermiyor</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>diğer kullanıcıların ne gördüğü öğrenilemiyor: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: satır %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>%1 yazıcısının PPD dosyası alınamıyor: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>PPD kaydedilemiyor: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>%1 yazıcısının PPD dosyası çok büyük</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>standart girdi okunamıyor</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: bir klasör</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>iş durduruldu</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>yazdırma sunucusu işi durdurdu: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>bu yazıcı bu dosya türünü kabul etmiyor</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>bu yazıcı bu dosya türünü kabul etmiyor (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>%1 yazdırılamadı: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>yazdırma sunucusu işi reddetti: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>“%1” iş kabul etmiyor</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>“%1” iş kabul etmiyor: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>“%1” adlı yazıcı yok</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>“%1” yazıcısı açılamıyor: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>“İş yönetimi” eklentisinin yazdırma penceresi için paneli yok</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>panelin düzeni yok</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>yazıcının yanıtı geçici klasöre yazılamıyor. Disk dolu mu?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>yazıcının yanıtı bir klasör listesi değil</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>JobHandling.pde programın yanında veya kitaplık klasöründe bulunamadı</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>klasörler hatırlanamıyor: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>%1 modeli için İş yönetimi</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>daha önce hiçbir şey yazdırılmadı</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>ön ayar bu klasörün adını saklayamıyor</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>“%1” ön ayarı yok; bu yazıcının ön ayarı yok</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>“%1” ön ayarı yok; bu yazıcının ön ayarları: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>“%1” ön ayarı hasarlı ve değiştirilmeden bırakıldı</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>bu yazıcının ön ayarları hasarlı ve değiştirilmeden bırakıldı</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>ön ayar adı en çok %1 karakter olmalıdır; daha kısa bir ad seçin</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>bu yazıcının ön ayarları okunamıyor: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>“%1” ön ayarı başka bir yazıcı modeli için, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>yazdırma sunucusu işi artık tanımıyor</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>%1 işi iptal edilemiyor: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>“%1” yazıcısı için kullanıcı adı veya parola yanlış</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>%1 yazdırma sunucusu için kullanıcı adı veya parola yanlış</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>“%1” yazıcısı parola istiyor</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>“%1” yazıcısı ayarlanamıyor: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>yazıcı yanıt vermiyor</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>adres bilinmiyor</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>bağlantı reddedildi</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>bağlantı kapatıldı</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>zamanında yanıt gelmedi</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>yanıt okunamıyor</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>yazıcıya ulaşılamıyor</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>%1 konumundan klasör listesi alınamadı: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: bir klasör, PPD dosyası değil</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>varsayılan yazıcı ayarlanmamış; -d ile bir yazıcı seçin</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>başka bir yazıcıya ait</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>%1 işi yeniden başlatılamıyor: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>%1 işi değiştirilemiyor: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Belirli saatte</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Bir saat girin; örneğin 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Yazıcı bekleniyor</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>1 başka iş bekleniyor</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>%n başka iş bekleniyor</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Bekletiliyor: Yazıcı parola istiyor</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Yazdırma saatine kadar bekletiliyor</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Serbest bırakılana kadar bekletiliyor</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Yazdırıyor</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>%1. sayfa yazdırılıyor</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Sayfa %1 / %2 yazdırılıyor</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Durduruldu: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Durduruldu: Yazıcı duraklatıldı</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Durduruldu</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>%1 üzerinde, orada PIN kodunuzu girmenizi bekliyor</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>%1 üzerinde, orada serbest bırakmanızı bekliyor</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Yazdırıldı</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Yazdırıldı ve yeniden yazdırmak için %1 üzerinde saklandı</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Bir kopya yazdırıldı, diğerleri %1 üzerinde bekliyor</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>%1 tarafından iptal edildi</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Yazıcıda iptal edildi</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>İptal edildi</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Yazdırma sunucusu durdurdu</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Yazdırılmadı</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>İşin yazdırılıp yazdırılmadığı bilinmiyor</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Yazıcıya bağlanılıyor</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Düzen</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>İş</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Diğer seçenekler</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Süz</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>PDF dosyasında sayfalar olduğu gibi kalır. Yalnızca sayfalar ve sıraları seçilebilir.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Sayfanın çizilmesi çok uzun sürdüğünden ön izleme yok.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Bu belge türü için ön izleme yok.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Ön izleme yok. Görmek için poppler-utils paketini kurun.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Bu PDF belgesi okunamadığından ön izleme yok.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Önceki sayfa</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Sonraki sayfa</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Sayfa</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Tüm sayfalar</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Seçili sayfalar</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Belge %1. sayfada bitiyor. Yazdırılacak sayfalar: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Kilitle: %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Yazıcının klasör adlarını almak için adresini girin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>“%1” bir adres değil. Yazıcının adını veya IP adresini girin.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Bu yazıcı belge dosyalamadığından klasör seçiminin etkisi yoktur.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Kilitli: Bu değer bu yazıcı için hatırlanıyor.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Kilitli değil: Bu değer yalnızca bu iş içindir.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Genişlik</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Yükseklik</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>inç</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Özel boyut</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>%1 ile %2 %3 arasında bir genişlik girin.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>%1 ile %2 %3 arasında bir yükseklik girin.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Korumalı belge</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 parolayla korunuyor. Belgeyi yazdırmak için parolayı girin.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Belge</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Hiçbir sayfa seçilmedi.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>PDF dosyası kaydetmek için qpdf paketini kurun.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Kaydetme çok uzun sürüyor.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Yeterli alan yok.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Durduruldu.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 kaydedilemiyor. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Yüzde</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>%1 ile %2 arasında bir yüzde girin.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Ön ayarlar</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Son kullanılan</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Ön ayar yok</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Ön ayar olarak kaydet…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Ön ayarı sil</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (değiştirildi)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Ön ayarlar: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Ön ayar olarak kaydet</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>PIN kodlarını dâhil et</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>“%1” ön ayarı değiştirilsin mi?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Yalnızca PDF belgeleri PDF olarak kaydedilebilir.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Hiçbir sayfa seçilmedi.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Sayfa %1 / %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Yaprak %1 / %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Yaprak %1 / %2, ön yüz</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Yaprak %1 / %2, arka yüz</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 sayfa</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n sayfa</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Toplam: 1 yaprak kâğıt</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Toplam: %n yaprak kâğıt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Yazıcıya bağlanılıyor…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Seçili sayfaları bir dosyaya kaydeder.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Bu yazıcı %1 desteklemiyor. İş onsuz yazdırılacak.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF olarak kaydet</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Yazdır: %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Belge seçilmedi</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Belge okunuyor…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Belge uzun. Kalanı yazdırırken okunur.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Ön izleme yok. Uygulama, siz “Yazdır” düğmesine bastıktan sonra sayfaları hazırlar.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Belge yok</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Belge seç</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF belgeleri (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>%1 numaralı iş %2 yazıcısına gönderildi.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>%1 olarak kaydedildi.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>İş yazdırılmadı. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Kaydet…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Yazdırılacak bir belge seçin.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>İş iptal ediliyor…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Yazıcı:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Belge:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Bu yazıcı ön ayardaki %1 değerini desteklemiyor. Kalanı ayarlandı.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Bekletilmiyor</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>İş %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Değerleri hatırlanamadı.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Yeniden yazdır</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>İşi iptal et</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>%1 konumundan 1 klasör</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%1 konumundan %n klasör</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Bu yazıcı artık yazdırma sunucusunda yok. Kaldırılmış olabilir.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Yazıcı</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Açıklama:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Konum:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>İleti:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Düzey bilinmiyor</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Yazıcı</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Yazıcı yok</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Yazıcılar aranıyor…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Bir yazıcının adını girin.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>%1 yazıcısını seçmek için Enter tuşuna basın.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Birden çok yazıcı eşleşiyor. Birini seçin.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>“%1” adlı yazıcı yok.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Yazıcı ayrıntıları</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>PDF olarak kaydet</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>İş kabul etmiyor: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>İş kabul etmiyor</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Duraklatıldı: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Yazdırıyor</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 iş bekliyor</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n iş bekliyor</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>Ağda</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Hiçbir yazıcı iş kabul etmiyor. Sistem ayarlarında yazıcıları denetleyin ve yeniden deneyin.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Ön izleme</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Bu işi kim görebilir?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Diğer kullanıcılar bu işin var olduğunu görebilir, ancak hiçbir ayrıntısını göremez.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Diğer kullanıcıların görebildikleri: %1. Gizlemek için yazdırma sunucusunun “%2” ilkesine şu satırları ekleyin:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (değiştirildi)</translation>
    </message>
</context>
</TS>
