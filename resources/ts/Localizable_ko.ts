<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>작업 처리</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>작업 보관</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>사용자 및 계정</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>보류</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>보류 방식</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>보류만</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>인쇄 후 보류</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>견본 인쇄</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>문서 보관</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>빠른 보관</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>기본 폴더</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>사용자 지정 폴더</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>폴더 PIN</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>프린터 주소</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>폴더 이름 가져오기</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>로그인 이름</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>사용자 번호</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>계정 번호</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>작업 ID</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>작업 이름</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>다음 설정을 확인하십시오.
로그인 이름
사용자 번호%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>폴더 이름을 가져올 수 없습니다.%@</translation>
    </message>
</context>
</TS>
