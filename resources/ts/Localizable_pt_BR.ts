<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Gerenciamento de trabalhos</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Armazenamento do trabalho</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Usuário e conta</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Retenção</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Modo de retenção</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Somente reter</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Reter após imprimir</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Impressão de amostra</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Código de acesso</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Arquivamento de documentos</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Arquivamento rápido</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Pasta principal</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Pasta personalizada</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Código da pasta</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Endereço da impressora</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Obter nomes das pastas</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Nome de login</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Número de usuário</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Número da conta</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID do trabalho</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nome do trabalho</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Verifique as seguintes configurações.
Nome de login
Número de usuário%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Não foi possível obter os nomes das pastas.%@</translation>
    </message>
</context>
</TS>
