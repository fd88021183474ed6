<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Gestione lavori</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Memoria lavori</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Utente e account</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Trattenimento</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Solo trattieni</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Trattieni dopo la stampa</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Stampa di prova</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Codice di accesso</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Archiviazione documenti</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Archiviazione rapida</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Cartella principale</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Cartella personalizzata</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Codice della cartella</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Indirizzo stampante</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Ottieni i nomi delle cartelle</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Nome di accesso</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Numero utente</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Numero di account</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID lavoro</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nome lavoro</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Verificare le seguenti impostazioni.
Nome di accesso
Numero utente%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Impossibile ottenere i nomi delle cartelle.%@</translation>
    </message>
</context>
</TS>
