<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Taakbeheer</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Taakopslag</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Gebruiker en account</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Vasthouden</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Alleen vasthouden</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Vasthouden na afdrukken</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Proefafdruk</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Toegangscode</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Documentopslag</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Snel opslaan</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Hoofdmap</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Aangepaste map</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Code van de map</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Printeradres</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Mapnamen ophalen</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Aanmeldnaam</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Gebruikersnummer</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Accountnummer</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Taak-ID</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Taaknaam</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Controleer de volgende instellingen.
Aanmeldnaam
Gebruikersnummer%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Kan de mapnamen niet ophalen.%@</translation>
    </message>
</context>
</TS>
