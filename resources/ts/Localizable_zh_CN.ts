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
        <source>Job Storage</source>
        <translation>作业存储</translation>
    </message>
    <message>
        <source>User and Account</source>
        <translation>用户和账户</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>保留作业</translation>
    </message>
    <message>
        <source>Hold Mode</source>
        <translation>保留方式</translation>
    </message>
    <message>
        <source>Hold Only</source>
        <translation>仅保留</translation>
    </message>
    <message>
        <source>Hold After Print</source>
        <translation>打印后保留</translation>
    </message>
    <message>
        <source>Sample Print</source>
        <translation>打印样张</translation>
    </message>
    <message>
        <source>Pass Code</source>
        <translation>PIN 码</translation>
    </message>
    <message>
        <source>Document Filing</source>
        <translation>文档归档</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Quick File</source>
        <translation>快速归档</translation>
    </message>
    <message>
        <source>Main Folder</source>
        <translation>主文件夹</translation>
    </message>
    <message>
        <source>Custom Folder</source>
        <translation>自定义文件夹</translation>
    </message>
    <message>
        <source>Folder Pass Code</source>
        <translation>文件夹 PIN 码</translation>
    </message>
    <message>
        <source>Printer&apos;s Address</source>
        <translation>打印机地址</translation>
    </message>
    <message>
        <source>Get Folder Names</source>
        <translation>获取文件夹名称</translation>
    </message>
    <message>
        <source>Login Name</source>
        <translation>登录名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>User Number</source>
        <translation>用户编号</translation>
    </message>
    <message>
        <source>Account Number</source>
        <translation>账户编号</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>作业标识</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Job Name</source>
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
