<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>工作處理</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>工作儲存</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>使用者與帳號</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>保留工作</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>保留方式</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>僅保留</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>列印後保留</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>列印樣張</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN 碼</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>文件歸檔</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>快速歸檔</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>主資料夾</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>自訂資料夾</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>資料夾 PIN 碼</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>印表機位址</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>取得資料夾名稱</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>登入名稱</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>使用者編號</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>帳號編號</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>工作識別碼</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>工作名稱</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>請確認以下設定項目。
登入名稱
使用者編號%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>無法取得資料夾名稱。%@</translation>
    </message>
</context>
</TS>
