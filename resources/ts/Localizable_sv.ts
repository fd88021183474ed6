<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Jobbhantering</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Jobblagring</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Användare och konto</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Kvarhållning</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Håll bara kvar</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Håll kvar efter utskrift</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Provutskrift</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN-kod</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Dokumentarkivering</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Snabbfil</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Huvudmapp</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Egen mapp</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Mappens PIN-kod</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Skrivarens adress</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Hämta mappnamn</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Inloggningsnamn</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Användarnummer</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Kontonummer</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Jobb-ID</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Jobbnamn</translation>
    </message>
    <message>
        <source>On</source>
        <translation>På</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Kontrollera följande inställningar.
Inloggningsnamn
Användarnummer%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Mappnamnen kunde inte hämtas.%@</translation>
    </message>
</context>
</TS>
