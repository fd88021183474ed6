<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>ジョブ管理</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>ジョブ保存</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>ユーザーとアカウント</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>ジョブの保留</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>保留方法</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>保留のみ</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>印刷後に保留</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>試し印刷</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>暗証番号</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>文書の保存先</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>クイック保存</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>メインフォルダー</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>カスタムフォルダー</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>フォルダーの暗証番号</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>プリンターのアドレス</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>フォルダー名を取得</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>ログイン名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>ユーザー番号</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>アカウント番号</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ジョブ ID</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>ジョブ名</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>次の設定項目を確認してください。
ログイン名
ユーザー番号%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>フォルダー名を取得できませんでした。%@</translation>
    </message>
</context>
</TS>
