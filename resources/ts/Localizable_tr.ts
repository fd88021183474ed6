<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>İş yönetimi</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>İş saklama</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Kullanıcı ve hesap</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Bekletme</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Bekletme kipi</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Yalnızca beklet</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Yazdırdıktan sonra beklet</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Örnek baskı</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN kodu</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Belge dosyalama</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Hızlı dosyalama</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Ana klasör</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Özel klasör</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Klasörün PIN kodu</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Yazıcının adresi</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Klasör adlarını al</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Oturum açma adı</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Kullanıcı numarası</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Hesap numarası</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>İş kimliği</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>İş adı</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Lütfen aşağıdaki ayarları denetleyin.
Oturum açma adı
Kullanıcı numarası%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Klasör adları alınamadı.%@</translation>
    </message>
</context>
</TS>
