<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Gestion des travaux</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Stockage des travaux</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Utilisateur et compte</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Conserver le travail</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Mode de conservation</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Conserver sans imprimer</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Conserver après impression</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Imprimer une épreuve</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Code d’accès</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Classement du document</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Classement rapide</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Dossier principal</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Dossier personnalisé</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Code d’accès du dossier</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Adresse de l’imprimante</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Obtenir les noms des dossiers</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Nom de connexion</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Numéro d’utilisateur</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Numéro de compte</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Identification du travail</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nom du travail</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
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
        <translation>Veuillez vérifier les réglages suivants.
Nom de connexion
Numéro d’utilisateur%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Impossible d’obtenir les noms des dossiers.%@</translation>
    </message>
</context>
</TS>
