<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Обработка заданий</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Хранение задания</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Пользователь и учётная запись</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Только удержать</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Удержать после печати</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Пробная печать</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Код доступа</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Хранение документов</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Быстрое сохранение</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Основная папка</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Своя папка</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Код папки</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Адрес принтера</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Получить имена папок</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Имя для входа</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Номер пользователя</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Номер учётной записи</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Идентификатор задания</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Имя задания</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Проверьте следующие настройки.
Имя для входа
Номер пользователя%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Не удалось получить имена папок.%@</translation>
    </message>
</context>
</TS>
