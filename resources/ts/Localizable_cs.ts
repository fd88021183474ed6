<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Správa úloh</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Uchování úlohy</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Uživatel a účet</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Podržení</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Režim</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Jen podržet</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Podržet po tisku</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Zkušební tisk</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Přístupový kód</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Ukládání dokumentů</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Rychlé uložení</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Hlavní složka</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Vlastní složka</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Kód složky</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Adresa tiskárny</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Získat názvy složek</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Přihlašovací jméno</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Číslo uživatele</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Číslo účtu</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID úlohy</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Název úlohy</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Zkontrolujte prosím následující nastavení.
Přihlašovací jméno
Číslo uživatele%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Názvy složek nelze získat.%@</translation>
    </message>
</context>
</TS>
