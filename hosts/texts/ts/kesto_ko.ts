<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>%1 또는 %2이어야 합니다</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>예상하지 못한 인수입니다</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>알 수 없는 옵션 %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 옵션에는 값이 필요합니다</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 옵션은 값을 받지 않습니다</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 옵션은 %2 옵션과 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>“%1 --help”를 실행해 보십시오.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 옵션에는 %2 옵션이 필요합니다</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>표준 출력에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>줄이 너무 깁니다</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>줄이 UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>줄이 비어 있습니다</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>입력을 요청할 터미널이 없습니다</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>0.1초에서 3600초 사이여야 합니다</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>매수는 %1에서 %2 사이여야 합니다</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>우선순위는 %1에서 %2 사이여야 합니다</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>초는 %1에서 %2 사이여야 합니다</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 옵션이 두 번 지정되었습니다</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>서버가 이 시간 동안 응답하지 않으면 중단(기본값: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>이 도움말 또는 버전을 출력</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>사용법: %1 [옵션]... [파일]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>일반 인쇄 명령과 같음</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>작업이 프린터에 보류되지 않습니다. 먼저 “보류”를 켜십시오.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>빠른 보관에는 PIN이 없습니다.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>사용자 지정 폴더에만 이름이 필요합니다. 먼저 “사용자 지정 폴더”를 선택하십시오.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>사용자 지정 폴더나 보호된 폴더에만 PIN이 있습니다.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>이 프린터는 로그인 이름이 아니라 사용자 번호로 사용자를 식별합니다.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>이 항목은 잠겨 있으며 이 프린터용으로 기억됩니다. 바꾸려면 자물쇠를 여십시오.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>숫자 숨기기</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>숫자 표시</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>프린터 선택</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>목록에서 프린터를 선택하십시오. 목록이 길면 프린터 이름의 일부를 입력하고 Enter 키를 누르십시오. 목록 아래의 줄에 프린터가 준비되었는지 표시됩니다.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>일부 쪽만 인쇄</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>“선택한 쪽”을 선택하고 쪽 번호나 범위를 입력하십시오. 예: 1-3, 5. 범위의 끝을 비워 둘 수 있습니다. 5-는 5쪽과 그 뒤의 모든 쪽을 인쇄합니다.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>양면에 인쇄</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>책처럼 넘기는 쪽은 “긴 가장자리”, 메모장처럼 넘기는 쪽은 “짧은 가장자리”를 선택하십시오.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>인쇄될 내용 보기</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>미리 보기는 프린터에서 나올 용지의 모습을 보여 줍니다. 아래의 화살표나 Page Up과 Page Down으로 쪽을 넘기고, Ctrl과 마우스 휠로 확대하십시오.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>쪽을 PDF 파일로 저장</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>PIN으로 프린터에 작업 보류</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>“작업 처리”에서 “보류”를 켜고 최대 8자리의 PIN을 입력하십시오. 누군가 프린터에서 PIN을 입력할 때까지 작업은 프린터에서 기다립니다. “인쇄 후 보류”는 인쇄한 뒤에도 작업을 보관합니다. “견본 인쇄”는 한 부를 인쇄하고 나머지를 보류합니다.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>사용자 밝히기</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>일부 프린터는 누가 인쇄하는지 묻습니다. “사용자 및 계정”에서 사용자 번호를 입력하거나 로그인 이름과 암호를 입력하십시오.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>항목 다시 사용</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>항목 옆의 자물쇠를 닫으십시오. 그러면 항목이 이 프린터용으로 기억됩니다. 바꾸려면 자물쇠를 여십시오.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>프린터의 폴더 선택</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>설정을 사전 설정으로 저장</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>“사전 설정”을 누르고 “사전 설정으로 저장”을 선택하십시오. 설정을 다시 사용하려면 거기에서 사전 설정을 선택하십시오. PIN은 포함하도록 선택한 경우에만 저장됩니다.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>다른 사람에게 보이는 작업 정보 확인</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>작업 취소</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>키보드 사용</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt와 밑줄 친 글자를 누르면 해당 컨트롤로, Alt, Shift와 글자를 누르면 그 옆의 자물쇠로 이동합니다. Enter는 인쇄하고, Escape는 취소하며, F1은 이 도움말을 엽니다. Ctrl+R은 커서가 PIN에 있는 동안 숫자를 표시합니다.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>인쇄 도움말</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>한 장에 여러 쪽 인쇄</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>“레이아웃”에서 한 장당 쪽 수, 순서, 테두리를 선택하십시오. 소책자를 만드는 프린터에서 “소책자”는 접은 용지를 책처럼 읽을 수 있도록 쪽을 배치합니다.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>쪽을 용지에 맞추기</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>“레이아웃”의 “배율”은 용지보다 크거나 작은 쪽을 어떻게 할지 정합니다. “용지에 맞춤”은 전체를 표시하고, “용지 채우기”는 여백을 남기지 않아 가장자리가 잘릴 수 있으며, “실제 크기”는 그대로 둡니다. “사용자 지정”의 퍼센트는 이미지에 적용됩니다.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>인쇄할 시각 선택</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>“작업”의 “인쇄”는 지정한 시각까지, 또는 “대기”를 선택하면 시스템의 인쇄 작업 목록에서 해제할 때까지 작업을 인쇄 서버에 보류합니다. 기다리는 작업 중 우선순위가 가장 높은 작업이 먼저 인쇄됩니다.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>표지와 청구 정보 추가</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>“작업”에서 문서 앞이나 뒤에 인쇄할 표지를 선택하십시오. 프로젝트 번호와 같은 청구 정보는 작업과 함께 인쇄 서버의 기록에 보관됩니다.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>프린터의 다른 옵션 찾기</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>“추가 옵션”에는 프린터의 다른 모든 옵션이 있습니다. 필터에 이름의 일부를 입력하면 그 이름이 든 옵션만 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>프린터 목록에서 “PDF로 저장”을 선택하고 “저장”을 누르십시오. 파일에는 선택한 쪽이 들어 있습니다. PDF 문서만 저장할 수 있으며, 쪽과 쪽 순서만 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>암호로 보호된 문서 인쇄</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>“인쇄”를 누르면 대화 상자가 문서의 암호를 묻습니다. 암호가 없는 사본을 인쇄하며, 이 사본은 사용자만 읽을 수 있고 나중에 삭제됩니다.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>“작업 처리”에서 “보류”를 켜십시오. “문서 보관”에서 “사용자 지정 폴더”를 선택하고 폴더 이름을 입력하십시오. “폴더 이름 가져오기”는 프린터의 폴더를 조회하므로 목록에서 하나를 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>요약에서 “이 작업을 누가 볼 수 있습니까?”를 누르십시오. 인쇄 서버가 작업의 어떤 세부 정보를 다른 사용자에게 보여 주는지, 어떻게 숨기는지 알려 줍니다.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>작업을 보내는 동안 “취소”를 누르십시오. 대화상자가 작업의 진행을 보여 주는 동안에는 “작업 취소”를 누르십시오. “다시 인쇄”는 실패한 작업을 한 번 더 보냅니다. 대화상자가 닫힌 뒤에는 시스템의 인쇄 작업 목록을 사용하십시오.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>매수</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>한 부씩 인쇄</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>역순</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>쪽</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>인쇄 대상</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>용지 크기</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>양면 인쇄</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>색</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>용지 공급</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>용지 종류</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>출력 용지함</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>스테이플</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>펀치</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>접기</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>한 장당 쪽 수</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>소책자</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>쪽 순서</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>테두리</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>배율</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>우선순위</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>청구 정보</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>표지</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>긴 가장자리</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>짧은 가장자리</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>모든 쪽</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>홀수 쪽</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>짝수 쪽</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>뒤집은 가로</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>뒤집은 세로</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>왼쪽에서 오른쪽, 위에서 아래</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>왼쪽에서 오른쪽, 아래에서 위</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>오른쪽에서 왼쪽, 위에서 아래</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>오른쪽에서 왼쪽, 아래에서 위</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>위에서 아래, 왼쪽에서 오른쪽</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>위에서 아래, 오른쪽에서 왼쪽</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>아래에서 위, 왼쪽에서 오른쪽</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>아래에서 위, 오른쪽에서 왼쪽</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>한 줄</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>굵은 한 줄</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>두 줄</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>굵은 두 줄</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>용지에 맞춤</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>실제 크기</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>용지 채우기</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>지금</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>긴급</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>기밀</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>대외비</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>비밀</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>극비</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>사용자 지정 %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>사용자 지정 %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>%1에</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>%1에는 양면 인쇄를 할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 “%2”은(는) %3 “%4”와(과) 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>양면 인쇄 끄기</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1을(를) %2(으)로 설정</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>%1쪽</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1부</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n부</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>쪽 번호나 범위를 입력하십시오. 예: 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>문서는 %1쪽에서 끝납니다. %1 이하의 쪽 번호를 입력하십시오.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>현재 쪽</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>선택 영역</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>후처리</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: 이 프린터에서 제공하지 않습니다</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>이 프린터는 누가 인쇄하는지 묻지 않습니다</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1: %2까지 가능합니다</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>최대 %n자리</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>최대 %n자</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 옵션은 --folder quick과 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 옵션에는 --folder NAME이 필요합니다</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 옵션에는 PIN이 있는 폴더나 사용자 지정 폴더의 --folder NAME이 필요합니다</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 옵션은 사용자 번호와 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>보류한 작업의 PIN</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main 또는 폴더 이름</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>폴더 PIN</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>폴더 PIN</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>로그인 이름</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>로그인 이름의 암호</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>로그인 대신 사용할 사용자 번호</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>계정 번호</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>프린터에서의 사용자 이름</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>프린터에서의 작업 이름</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>사용자 번호가 없습니다. %1 옵션으로 지정하십시오</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>로그인 이름이 없습니다. %1 옵션으로 지정하십시오</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p는 -q, -w는 -m과 같음. 나머지는 효과 없음</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>작업을 보내지 않을 때 대기열을 대신함</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>작업 설정을 출력하고 아무것도 보내지 않음. --remember, --forget 또는 --save-preset으로 요청한 것만 저장</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>설정 대신 패널의 요약을 출력</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>대기열 또는 작업 처리를 제공하는 대기열, 그리고 네트워크의 프린터를 나열</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>프린터의 폴더를 가져와 기억하고 나열</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>서버의 다른 사용자가 작업 옵션에서 볼 수 있는 것과 숨기는 방법을 표시</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>작업이 인쇄되거나 프린터에 보류될 때까지 진행 상황을 출력. 그러지 못하면 1, SECONDS 후에도 대기 중이면 4로 끝남</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON으로 출력</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>서버나 프린터가 요구하는 암호</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>작업을 보류: 인쇄 전, 인쇄 후 또는 견본 인쇄 후</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>작업을 보류하지 않음</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>X(pin, folder-pin, password)를 파일이나 표준 입력(“-”)의 첫 줄에서 읽거나 터미널에서 물어봄: 명령줄은 다른 사용자가 볼 수 있음</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>입력한 X를 이 대기열의 다음 작업을 위해 기억</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>더 이상 기억하지 않음</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>이 대기열의 사전 설정으로 시작</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>설정을 사전 설정으로 저장. PIN은 --with-codes를 함께 쓸 때만 저장</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>이것만 수행(-d 또는 --ppd 대상)</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>파일이나 표준 입력을 프린터의 작업 처리로 인쇄합니다.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>종료 코드: 0 완료, 1 실패, 2 잘못된 사용, 3 패널이 거부, 4 대기 중.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>더 이상 기다리지 않음: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>작업을 받지 않음</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>작업 1개</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>작업 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>이 프린터에는 폴더 목록이 없습니다</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>프린터의 주소를 알 수 없습니다. --address로 지정하십시오</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>“%1”은(는) 주소가 아닙니다</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: 다른 사용자는 작업의 옵션을 볼 수 없습니다.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: 다른 사용자가 볼 수 있는 작업 정보: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>관리자는 cupsd.conf의 프린터 정책에서 이를 숨길 수 있습니다:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>관리자는 cupsd.conf의 &lt;Policy %1&gt;에서 이를 숨길 수 있습니다:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>잠김</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder는 효과가 없습니다: 이 프린터는 문서를 보관하지 않습니다</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>입력한 값을 기억할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>작업을 보냈지만 문제가 있습니다: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>원시(raw) 작업은 드라이버를 거치지 않으므로 작업 처리도 적용되지 않습니다</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>프린터 “%1”은(는) 작업 처리를 제공하지 않습니다</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m은 무시됩니다: 새 작업에만 사용됩니다</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>경고: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i는 이미 보낸 작업을 변경합니다. 파일을 지정하지 마십시오</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i는 작업이 있는 곳에서 변경합니다. -d와 --ppd를 지정하지 마십시오</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i로는 이미 보낸 작업의 작업 처리를 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait에는 인쇄할 작업이 필요합니다</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>목록은 작업 옵션과 함께 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>프린터가 지정되지 않았습니다. -d 또는 --ppd로 지정하십시오</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd에는 --dry-run 또는 --folders가 필요합니다</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>표준 입력에서는 한 항목만 읽을 수 있습니다</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>비워 둘 수 없습니다</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>18:30(UTC) 같은 시각, hold, immediate, resume, restart 또는 evening 같은 인쇄 서버의 키워드여야 합니다</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>12 또는 QUEUE-12 같은 작업이어야 합니다</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 옵션은 무시됩니다: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS에는 양식이 없습니다</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS에는 모드가 없습니다. -o를 사용하십시오</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>문자 집합은 항상 UTF-8입니다</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>인쇄 서버가 형식을 감지합니다. -o document-format=TYPE을 사용하십시오</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember와 --forget에 %1을(를) 함께 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>-i, --dry-run, --list, --folders, --check, --list-presets, --delete-preset 중 하나만 사용하십시오</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>암호가 틀렸습니다. %2에 대한 %1의 암호</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>%2에 대한 %1의 암호</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1. --server-password-file로 지정하십시오</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>문서 %1 보내는 중: %2MiB, %3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>문서 %1 보내는 중: %2MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>이미 보낸 작업을 변경: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>파일의 암호를 &quot;%1&quot;에 보내지 않습니다. 이것은 네트워크 프린터이고 인쇄 서버에 설정되어 있지 않습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>&quot;%1&quot;은(는) 인쇄 서버에 설정되어 있지 않습니다. 네트워크 프린터를 사용합니다: %2</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1:</source>
        <comment>a label</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>PrintTexts</name>
    <message>
        <source>no printer is available</source>
        <translation>사용할 수 있는 프린터가 없습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>이 섹션을 열기</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>대화상자의 그림을 저장하고 종료</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>시작에 걸린 시간을 출력하고 종료</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>파일이나 표준 입력의 인쇄 대화상자를 표시합니다.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>종료 코드: 0 보냄, 1 보내지 않음, 2 잘못된 사용.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>연결하는 중</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>덮개 열림</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>드라이버 없음</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>현상제 없음</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>현상제 부족</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>문이 열림</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>너무 뜨거움</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>예열 중</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>새 작업 보류 중</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>용지함 없음</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>잉크 또는 토너 없음</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>잉크 또는 토너 부족</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>폐토너 통 거의 가득 참</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>폐토너 통 가득 참</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>용지 없음</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>용지 걸림</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>용지 부족</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>용지 필요</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>일시 중지하는 중</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>오프라인</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>드럼 수명 다 됨</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>드럼 수명 거의 다 됨</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>확인 필요</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>출력 용지함 거의 가득 참</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>출력 용지함 가득 참</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>출력 용지함 없음</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>프린터 메모리 가득 참</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>일부 중지됨</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>중지하는 중</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>토너 없음</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>토너 부족</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>레터</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>리갈</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>이그제큐티브</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>타블로이드</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>레저</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>스테이트먼트</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>엽서 (일본)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>왕복 엽서 (일본)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Monarch 봉투</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>%1 봉투</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>%1호 봉투</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>기본 용지함</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>보조 용지함</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>카세트</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>카세트 %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>용지함 %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>수동 급지</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>다목적 용지함</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>봉투 공급기</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>봉투 수동 급지</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>대용량 용지함</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>위쪽 용지함</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>가운데 용지함</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>아래쪽 용지함</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>왼쪽 용지함</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>오른쪽 용지함</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>옆쪽 용지함</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>뒤쪽 용지함</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>중앙 용지함</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>사진 용지함</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>디스크 용지함</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>엽서 용지함</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>롤 용지</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>보조 롤 용지</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>롤 %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>일반 용지</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>레터헤드</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>미리 인쇄된 용지</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>천공 용지</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>재생 용지</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>본드지</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>두꺼운 용지</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>얇은 용지</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>코팅 용지</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>잉크젯 용지</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>고급 용지</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>색지</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>면 용지</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>카드 용지</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>투명 용지</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>봉투</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>레이블</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>사진 용지</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>광택 사진 용지</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>고광택 사진 용지</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>반광택 사진 용지</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>새틴 사진 용지</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>무광택 사진 용지</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>연속 용지</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>색인 용지</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>필름</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>위쪽 출력 용지함</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>가운데 출력 용지함</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>아래쪽 출력 용지함</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>왼쪽 출력 용지함</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>오른쪽 출력 용지함</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>중앙 출력 용지함</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>옆쪽 출력 용지함</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>뒤쪽 출력 용지함</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>인쇄면 위로</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>인쇄면 아래로</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>스태커 %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>스태커</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>메일함 %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>내 메일함</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>컬러</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>흑백</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>검은색만, 회색 없음</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>초안</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>스테이플</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>스테이플 2개</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>스테이플 3개</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>가장자리 철</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>중철</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>소책자</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>펀치</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>구멍 2개</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>구멍 3개</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>구멍 4개</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>여러 구멍</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>제본</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>재단</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>표지 추가</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>작업 어긋나게 쌓기</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>코팅</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>접기</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>반으로 접기</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>편지 접기</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z 접기</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>반 Z 접기</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>아코디언 접기</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>대문 접기</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>이중 대문 접기</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>평행 접기</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, 여백 없음</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>앞 표지</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>뒤 표지</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>암호 필요</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>프린터 %1이(가) 암호를 요구합니다.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>인쇄 서버 %1이(가) 암호를 요구합니다.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>사용자 이름이나 암호가 틀렸습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>도메인:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>사용자 이름:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>작업 보내는 중</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1은(는) 폴더입니다. 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1이(가) 인쇄할 수 있는 최대 크기인 %2보다 큽니다.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>인쇄하기 위해 %1을(를) 복사할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1이(가) 비어 있습니다. 인쇄할 내용이 없습니다.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>문서</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 외 %n개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>문서에 쪽이 없습니다. 인쇄할 내용이 없습니다.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>미리 보기를 사용할 수 없습니다. 보려면 cups를 설치하십시오.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>문서 변환이 너무 오래 걸려 미리 보기를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>이 종류의 문서는 미리 볼 수 없습니다.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>문서가 암호로 보호되어 있습니다. 인쇄하려면 암호를 입력하십시오.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>문서가 손상되어 표시할 수 없습니다. 프린터에서 인쇄하지 못할 수도 있습니다.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>문서가 손상되었습니다. 일부가 빠져 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>선택…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>문서 선택</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>문서를 열 수 없습니다. 열려면 qpdf를 설치하십시오.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>문서를 여는 데 시간이 너무 오래 걸립니다.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>문서의 사본을 저장할 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>문서가 손상되어 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>암호가 틀렸습니다. 한 번 더 시도할 수 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>암호가 틀렸습니다. %n번 더 시도할 수 있습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>인쇄 서버 %1을(를) 찾는 데 시간이 너무 오래 걸렸습니다</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>이름이 %1인 인쇄 서버가 없습니다</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>인쇄 서버 %1에 암호화하여 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>인쇄 서버 %1에 연결할 수 없습니다. 실행 중입니까?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>인쇄 서버 %1이(가) 문서 읽기를 중단했습니다</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>인쇄 서버의 응답이 완전하지 않습니다</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>인쇄 서버의 응답이 너무 큽니다</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>인쇄 서버 %1이(가) %2초 안에 응답하지 않았습니다</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>인쇄 서버 %1이(가) 연결을 닫았습니다</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>인쇄 서버 %1이(가) 다른 주소로 리디렉션했습니다(HTTP 상태 %2). 리디렉션은 따르지 않습니다</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>인쇄 서버 %1이(가) 암호를 요구합니다</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>인쇄 서버 %1의 응답: %2(HTTP 상태 %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>인쇄 서버의 응답을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>작업 옵션</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>작업 이름</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>PIN의 다이제스트</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>작업 시각</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>폴더의 PIN</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>사용자 번호</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>계정 번호</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>인쇄 서버가 작업에 번호를 부여하지 않았습니다</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>“%1”에 작업을 만들 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>작업 %1-%2을(를) 취소할 수 없습니다: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>인쇄 서버의 응답에 작업이 없습니다</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>다른 사용자에게 무엇이 보이는지 알아낼 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: %2번째 줄: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>%1의 PPD를 가져올 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>PPD를 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>%1의 PPD가 너무 큽니다</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>표준 입력을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: 폴더입니다</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>작업이 중지되었습니다</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>인쇄 서버가 작업을 중지했습니다: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>이 프린터는 이 종류의 파일을 받지 않습니다</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>이 프린터는 이 종류의 파일을 받지 않습니다(%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>%1을(를) 인쇄할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>인쇄 서버가 작업을 거부했습니다: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>“%1”이(가) 작업을 받지 않습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>“%1”이(가) 작업을 받지 않습니다: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>이름이 “%1”인 프린터가 없습니다</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>프린터 “%1”을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>“작업 처리” 확장에 인쇄 대화 상자용 패널이 없습니다</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>패널에 레이아웃이 없습니다</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>프린터의 응답을 임시 폴더에 쓸 수 없습니다. 디스크가 가득 찼습니까?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>프린터의 응답이 폴더 목록이 아닙니다</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>프로그램 옆이나 라이브러리 폴더에서 JobHandling.pde를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>폴더를 기억할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>모델 %1의 작업 처리</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>이전에 인쇄한 것이 없습니다</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>사전 설정에 이 폴더의 이름을 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>“%1” 사전 설정이 없습니다. 이 프린터에는 사전 설정이 없습니다</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>“%1” 사전 설정이 없습니다. 이 프린터의 사전 설정: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>“%1” 사전 설정이 손상되어 그대로 두었습니다</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>이 프린터의 사전 설정이 손상되어 그대로 두었습니다</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>사전 설정 이름은 최대 %1자여야 합니다. 더 짧은 이름을 선택하십시오</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>이 프린터의 사전 설정을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>“%1” 사전 설정은 다른 프린터 모델(%2)용입니다</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>인쇄 서버가 더 이상 이 작업을 알지 못합니다</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>작업 %1을(를) 취소할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>프린터 “%1”의 사용자 이름이나 암호가 틀렸습니다</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>인쇄 서버 %1의 사용자 이름이나 암호가 틀렸습니다</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>프린터 “%1”이(가) 암호를 요구합니다</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>프린터 “%1”을(를) 설정할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>프린터가 응답하지 않습니다</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>주소를 알 수 없습니다</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>연결이 거부되었습니다</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>연결이 닫혔습니다</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>제시간에 응답이 없습니다</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>응답을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>프린터에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>%1의 폴더 목록이 없습니다: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: PPD 파일이 아니라 폴더입니다</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>기본 프린터가 설정되지 않았습니다. -d로 선택하십시오</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>다른 프린터의 작업입니다</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>작업 %1을(를) 다시 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>작업 %1을(를) 변경할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>At</source>
        <translation>시각 지정</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>시각을 입력하십시오. 예: 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>프린터를 기다리는 중</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>다른 작업 1개를 기다리는 중</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>다른 작업 %n개를 기다리는 중</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>보류됨: 프린터가 암호를 요구합니다</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>인쇄 시각까지 보류됨</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>해제할 때까지 보류됨</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>%1쪽 인쇄 중</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>%2쪽 중 %1쪽 인쇄 중</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>중지됨: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>중지됨: 프린터가 일시 중지됨</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>%1에서 PIN을 입력할 때까지 기다림</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>%1에서 해제할 때까지 기다림</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>인쇄됨</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>인쇄되었고 다시 인쇄할 수 있도록 %1에 보관됨</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>한 부가 인쇄되었고 나머지는 %1에서 기다림</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>%1이(가) 취소함</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>프린터에서 취소됨</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>인쇄 서버가 중지함</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>인쇄되지 않음</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>작업이 인쇄되었는지 알 수 없음</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>프린터에 연결하는 중</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>레이아웃</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>추가 옵션</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>PDF 파일의 쪽은 그대로 유지됩니다. 쪽과 순서만 선택할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>쪽을 그리는 데 시간이 너무 오래 걸려 미리 보기를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>이 종류의 문서는 미리 볼 수 없습니다.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>미리 보기를 사용할 수 없습니다. 보려면 poppler-utils를 설치하십시오.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>이 PDF 문서를 읽을 수 없어 미리 보기를 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>이전 쪽</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>다음 쪽</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>쪽</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>모든 쪽</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>선택한 쪽</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>문서는 %1쪽에서 끝납니다. 인쇄할 쪽: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>%1 잠그기</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>폴더 이름을 가져오려면 프린터의 주소를 입력하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>“%1”은(는) 주소가 아닙니다. 프린터의 이름이나 IP 주소를 입력하십시오.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>이 프린터는 문서를 보관하지 않으므로 폴더를 선택해도 효과가 없습니다.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>잠김: 이 항목은 이 프린터용으로 기억됩니다.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>잠기지 않음: 이 항목은 이 작업에만 적용됩니다.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>인치</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>사용자 지정 크기</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>%1에서 %2 %3 사이의 너비를 입력하십시오.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>%1에서 %2 %3 사이의 높이를 입력하십시오.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>보호된 문서</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1이(가) 암호로 보호되어 있습니다. 문서를 인쇄하려면 암호를 입력하십시오.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>선택한 쪽이 없습니다.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>PDF 파일을 저장하려면 qpdf를 설치하십시오.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>저장하는 데 시간이 너무 오래 걸립니다.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>공간이 부족합니다.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>중지했습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1을(를) 저장할 수 없습니다. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>퍼센트</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>%1에서 %2 사이의 퍼센트 값을 입력하십시오.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>사전 설정</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>마지막 사용</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>사전 설정 없음</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>사전 설정으로 저장…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>사전 설정 삭제</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1(변경됨)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>사전 설정: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>사전 설정으로 저장</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>PIN 포함</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>사전 설정 &quot;%1&quot;을(를) 바꾸시겠습니까?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>PDF 문서만 PDF로 저장할 수 있습니다.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>선택한 쪽이 없습니다.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%2쪽 중 %1쪽</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>%2장 중 %1장</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>%2장 중 %1장, 앞면</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>%2장 중 %1장, 뒷면</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1쪽</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n쪽</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>합계: 용지 1장</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>합계: 용지 %n장</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>프린터에 연결하는 중…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>선택한 쪽을 파일로 저장합니다.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>이 프린터는 %1을(를) 지원하지 않습니다. 이 설정 없이 작업을 인쇄합니다.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF로 저장</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>%1에서 인쇄</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>선택한 문서 없음</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>문서를 읽는 중…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>문서가 깁니다. 나머지는 인쇄할 때 읽습니다.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>미리 보기를 사용할 수 없습니다. “인쇄”를 누르면 프로그램이 쪽을 준비합니다.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>문서 없음</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>문서 선택</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 문서 (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>작업 %1을(를) %2(으)로 보냈습니다.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>%1(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>작업을 인쇄하지 않았습니다. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>저장…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>인쇄할 문서를 선택하십시오.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>작업을 취소하는 중…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>프린터:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>문서:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>이 프린터는 사전 설정의 %1을(를) 지원하지 않습니다. 나머지는 설정했습니다.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>보류 안 함</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>작업 %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>작업의 항목을 기억할 수 없었습니다.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>다시 인쇄</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>작업 취소</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>%1의 폴더 1개</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%1의 폴더 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>인쇄 서버에 이 프린터가 더 이상 없습니다. 제거되었을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>이름:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>설명:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>모델:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>위치:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>메시지:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>잔량 알 수 없음</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>프린터 없음</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>프린터를 찾는 중…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>프린터의 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>%1을(를) 선택하려면 Enter 키를 누르십시오.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>여러 프린터가 일치합니다. 하나를 선택하십시오.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>이름이 “%1”인 프린터가 없습니다.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>프린터 세부 정보</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>PDF로 저장</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>작업을 받지 않음: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>작업을 받지 않음</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>일시 중지됨: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>작업 1개 대기 중</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>작업 %n개 대기 중</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>네트워크</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>작업을 받는 프린터가 없습니다. 시스템 설정에서 프린터를 확인한 다음 다시 시도하십시오.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>이 작업을 누가 볼 수 있습니까?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>다른 사용자는 이 작업이 있다는 것은 볼 수 있지만 세부 정보는 볼 수 없습니다.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>다른 사용자에게 보이는 정보: %1. 숨기려면 인쇄 서버의 “%2” 정책에 다음 줄을 추가하십시오:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1(변경됨)</translation>
    </message>
</context>
</TS>
