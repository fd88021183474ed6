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
        <source>Job Storage</source>
        <translation>Auftragsspeicher</translation>
    </message>
    <message>
        <source>User and Account</source>
        <translation>Benutzer und Konto</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Zurückhalten</translation>
    </message>
    <message>
        <source>Hold Mode</source>
        <translation>Haltemodus</translation>
    </message>
    <message>
        <source>Hold Only</source>
        <translation>Nur zurückhalten</translation>
    </message>
    <message>
        <source>Hold After Print</source>
        <translation>Nach dem Druck halten</translation>
    </message>
    <message>
        <source>Sample Print</source>
        <translation>Probedruck</translation>
    </message>
    <message>
        <source>Pass Code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Document Filing</source>
        <translation>Dokumentenablage</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Quick File</source>
        <translation>Schnellablage</translation>
    </message>
    <message>
        <source>Main Folder</source>
        <translation>Hauptordner</translation>
    </message>
    <message>
        <source>Custom Folder</source>
        <translation>Eigener Ordner</translation>
    </message>
    <message>
        <source>Folder Pass Code</source>
        <translation>PIN des Ordners</translation>
    </message>
    <message>
        <source>Printer&apos;s Address</source>
        <translation>Druckeradresse</translation>
    </message>
    <message>
        <source>Get Folder Names</source>
        <translation>Ordnernamen abrufen</translation>
    </message>
    <message>
        <source>Login Name</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>User Number</source>
        <translation>Benutzernummer</translation>
    </message>
    <message>
        <source>Account Number</source>
        <translation>Kontonummer</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Auftragskennung</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Job Name</source>
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
