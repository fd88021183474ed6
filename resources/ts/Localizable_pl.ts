<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Obsługa zadań</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Przechowywanie zadania</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Użytkownik i konto</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Wstrzymanie</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Tryb</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Tylko wstrzymaj</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Wstrzymaj po wydruku</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Wydruk próbny</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Kod dostępu</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Archiwizacja dokumentów</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Szybki zapis</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Folder główny</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Folder własny</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Kod folderu</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Adres drukarki</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Pobierz nazwy folderów</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Nazwa logowania</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Numer użytkownika</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Numer konta</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Identyfikator zadania</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nazwa zadania</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Sprawdź następujące ustawienia.
Nazwa logowania
Numer użytkownika%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Nie można pobrać nazw folderów.%@</translation>
    </message>
</context>
</TS>
