<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>作业处理</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>作业存储</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>用户和账户</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>保留作业</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>保留方式</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>仅保留</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>打印后保留</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>打印样张</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN 码</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>文档归档</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>快速归档</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>主文件夹</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>自定义文件夹</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>文件夹 PIN 码</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>打印机地址</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>获取文件夹名称</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>登录名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>用户编号</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>账户编号</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>作业标识</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>作业名</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>请确认以下设置项。
登录名
用户编号%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>无法获取文件夹名称。%@</translation>
    </message>
</context>
</TS>
