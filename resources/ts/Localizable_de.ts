<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Auftragssteuerung</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Auftragsspeicher</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Benutzer und Konto</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Zurückhalten</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Haltemodus</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Nur zurückhalten</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Nach dem Druck halten</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Probedruck</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Dokumentenablage</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Schnellablage</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Hauptordner</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Eigener Ordner</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>PIN des Ordners</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Druckeradresse</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Ordnernamen abrufen</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Benutzernummer</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Kontonummer</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Auftragskennung</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Auftragsname</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Bitte prüfen Sie die folgenden Einstellungen.
Anmeldename
Benutzernummer%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Die Ordnernamen konnten nicht abgerufen werden.%@</translation>
    </message>
</context>
</TS>
