<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Feladatkezelés</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Feladat tárolása</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Felhasználó és fiók</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Visszatartás</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Mód</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Csak visszatartás</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Visszatartás nyomtatás után</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Próbanyomat</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Hozzáférési kód</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Dokumentumtárolás</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Gyors tárolás</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Főmappa</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Egyéni mappa</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Mappa kódja</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Nyomtató címe</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Mappanevek lekérése</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Bejelentkezési név</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Felhasználószám</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Fiókszám</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Feladatazonosító</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Feladatnév</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Ellenőrizze a következő beállításokat.
Bejelentkezési név
Felhasználószám%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>A mappanevek nem kérhetők le.%@</translation>
    </message>
</context>
</TS>
