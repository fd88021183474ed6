<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Gestión de trabajos</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Usuario y cuenta</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Retener el trabajo</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Modo de retención</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Solo retener</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Retener tras imprimir</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Imprimir una muestra</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Código de acceso</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Archivado del documento</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Archivado rápido</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Carpeta principal</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Carpeta personalizada</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Código de la carpeta</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Dirección de la impresora</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Obtener nombres de carpetas</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Nombre de inicio de sesión</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Número de usuario</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Número de cuenta</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Identificación del trabajo</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nombre del trabajo</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Compruebe los ajustes siguientes.
Nombre de inicio de sesión
Número de usuario%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>No se pudieron obtener los nombres de las carpetas.%@</translation>
    </message>
</context>
</TS>
