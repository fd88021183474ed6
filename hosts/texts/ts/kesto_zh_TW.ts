<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>必須是 %1 或 %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>未預期的引數</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>不明的選項 %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 需要一個值</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 不接受值</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 不能與 %2 一起使用</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>請嘗試「%1 --help」。</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 需要 %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>無法寫入標準輸出</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>該行過長</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>該行不是 UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>該行是空的</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>沒有可供詢問的終端機</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1：</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>已中斷</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>必須介於 0.1 到 3600 秒之間</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>份數必須介於 %1 到 %2 之間</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>優先順序必須介於 %1 到 %2 之間</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>秒數必須介於 %1 到 %2 之間</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 指定了兩次</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>伺服器無回應達到此時間時放棄（預設 5）</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>顯示此文字或版本</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>用法：%1 [選項]... [檔案]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>與一般的列印指令相同</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>工作不會保留在印表機上。請先開啟「保留工作」。</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>快速歸檔沒有 PIN 碼。</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>只有自訂資料夾才需要名稱。請先選擇「自訂資料夾」。</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>只有自訂資料夾或受保護的資料夾才有 PIN 碼。</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>此印表機透過使用者編號來識別您，而不是登入名稱。</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>此內容已鎖定，並會為此印表機記住。若要變更，請開啟掛鎖。</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>隱藏數字</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>顯示數字</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>選擇印表機</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>從清單中選擇印表機。如果清單很長，請輸入印表機名稱的一部分，然後按 Enter。清單下方的一行會顯示印表機是否就緒。</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>列印部分頁面</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>選擇「選取的頁面」，然後輸入頁碼或頁碼範圍，例如 1-3, 5。範圍可以不寫結尾：5- 會列印第 5 頁及其後的所有頁面。</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>列印在兩面</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>如果要像書本一樣翻頁，請選擇「長邊」；如果要像便條本一樣翻頁，請選擇「短邊」。</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>查看將要列印的內容</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>預覽會顯示紙張從印表機輸出時的樣子。使用預覽下方的箭頭或 Page Up 和 Page Down 翻頁，使用 Ctrl 和滑鼠滾輪放大頁面。</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>將頁面儲存為 PDF 檔案</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>使用 PIN 碼將工作保留在印表機上</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>在「工作處理」下開啟「保留工作」，並輸入最多 8 位數字的 PIN 碼。工作會在印表機中等待，直到有人在印表機上輸入該 PIN 碼。「列印後保留」會在列印後保留工作。「列印樣張」會列印一份，並保留其餘各份。</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>說明您的身分</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>有些印表機會要求說明由誰列印。請在「使用者與帳號」下輸入您的使用者編號，或登入名稱和密碼。</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>再次使用輸入的內容</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>鎖上輸入項旁的掛鎖後，會為此印表機記住該內容。若要變更，請開啟掛鎖。</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>選擇印表機上的資料夾</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>將設定儲存為預設組</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>按「預設組」，然後選擇「另存為預設組」。若要再次使用這些設定，請在那裡選擇該預設組。只有選擇包含 PIN 碼時，才會儲存 PIN 碼。</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>查看他人能看到工作的哪些內容</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>取消工作</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>使用鍵盤</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt 加底線字母會移到對應的控制項；Alt、Shift 加該字母會移到其旁邊的掛鎖。Enter 列印，Esc 取消，F1 開啟此說明。游標位於 PIN 碼中時，Ctrl+R 會顯示其數字。</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>列印說明</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>在一張紙上列印多頁</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>在「版面配置」下選擇每張頁數、頁面順序和邊框。在可製作小冊子的印表機上，「小冊子」會排列頁面，讓摺好的紙張可以像書本一樣閱讀。</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>讓頁面符合紙張</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>在「版面配置」下，「縮放」決定如何處理大於或小於紙張的頁面。「符合紙張」會顯示整頁，「填滿紙張」不留邊界且可能切掉邊緣，「實際大小」則維持原狀。「自訂」的百分比適用於影像。</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>選擇列印時間</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>在「工作」下，「列印」會將工作保留在列印伺服器上，直到指定的時間；若選擇「保留」，則直到您在系統的列印工作清單中釋放。等待的工作中，優先順序最高者最先列印。</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>加入封面和帳務資訊</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>在「工作」下選擇在文件之前或之後列印的封面。帳務資訊（例如專案編號）會隨工作保存在列印伺服器的紀錄中。</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>尋找印表機的其他選項</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>「更多選項」包含印表機的所有其他選項。在篩選中輸入名稱的一部分，即可只查看含有該部分的選項。</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>在印表機清單中選擇「另存為 PDF」，然後按「儲存」。檔案包含您選取的頁面。只能儲存 PDF 文件，而且只能選擇頁面及其順序。</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>列印受密碼保護的文件</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>當您按「列印」時，對話框會詢問文件的密碼。它會列印一份不含密碼的副本，該副本只有您能讀取，之後會刪除。</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>在「工作處理」下開啟「保留工作」。在「文件歸檔」下選擇「自訂資料夾」，然後輸入資料夾的名稱。「取得資料夾名稱」會向印表機查詢其資料夾，讓您從清單中選擇。</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>在摘要中按「誰能看到此工作？」。結果會說明列印伺服器向其他使用者顯示工作的哪些詳細資料，以及如何隱藏它們。</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>在傳送工作時按「取消」。在對話方塊追蹤工作時按「取消工作」；「再次列印」會重新傳送失敗的工作。對話方塊關閉後，請使用系統的列印工作清單。</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>份數</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份列印</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>反向順序</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>僅列印</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>紙張大小</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>雙面列印</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色彩</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>紙張來源</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>紙張類型</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>出紙匣</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>裝訂</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>摺疊</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每張頁數</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>頁面順序</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>邊框</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先順序</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>帳務資訊</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>長邊</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>短邊</translation>
    </message>
    <message>
        <source>On</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>所有頁面</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>奇數頁</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>偶數頁</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>直向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>橫向</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>反橫向</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>反直向</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>由左至右，由上至下</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>由左至右，由下至上</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>由右至左，由上至下</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>由右至左，由下至上</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>由上至下，由左至右</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>由上至下，由右至左</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>由下至上，由左至右</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>由下至上，由右至左</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>單線</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>粗單線</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>雙線</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>粗雙線</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>符合紙張</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>實際大小</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>填滿紙張</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>緊急</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>未分級</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>已分級</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>機密</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>極機密</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>絕對機密</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>自訂 %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>自訂 %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>於 %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>無法在「%1」上雙面列印。</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1「%2」無法與%3「%4」同時使用。</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>關閉雙面列印</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>將%1設為%2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>第 %1 頁</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 份</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n 份</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>請輸入頁碼或頁碼範圍，例如 1-3, 5。</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>文件到第 %1 頁為止。請輸入不超過 %1 的頁碼。</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>目前頁面</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選取範圍</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>裝訂</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1：此印表機不提供</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>此印表機不詢問由誰列印</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>最多 %n 位數字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>最多 %n 個字元</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 不能與 --folder quick 一起使用</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 需要 --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 需要有 PIN 碼的資料夾或自訂資料夾的 --folder NAME</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 不能與使用者編號一起使用</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN 碼</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>所保留工作的 PIN 碼</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick、main 或資料夾名稱</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>資料夾 PIN 碼</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>資料夾 PIN 碼</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>登入名稱</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>登入名稱的密碼</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>取代登入名稱的使用者編號</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>帳號編號</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>印表機上的使用者名稱</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>印表機上的工作名稱</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>缺少使用者編號；請以 %1 指定</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>缺少登入名稱；請以 %1 指定</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p 即 -q，-w 即 -m；其餘沒有作用</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>不傳送工作時代替佇列</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>顯示工作的設定而不傳送任何內容；只保存 --remember、--forget 或 --save-preset 所要求的內容</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>顯示面板的摘要而不是設定</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>列出佇列，或提供工作處理的佇列，以及網路上的印表機</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>取得、記住並列出印表機的資料夾</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>顯示伺服器的其他使用者能看到工作的哪些選項，以及如何隱藏</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>顯示工作的進展，直到已列印或保留在印表機上；否則以 1 結束，如果 SECONDS 之後仍在等待則以 4 結束</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>顯示 JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>伺服器或印表機要求的密碼</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>保留工作：不列印、列印之後或列印樣張之後</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>不保留工作</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>從檔案或標準輸入（「-」）的第一行讀取 X（pin、folder-pin、password），或在終端機詢問：其他使用者可能看到命令列</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>為此佇列的後續工作記住內容 X</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>不再記住</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>從此佇列的預設組開始</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>將設定儲存為預設組；PIN 碼僅在使用 --with-codes 時儲存</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>只執行此動作，針對 -d 或 --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>使用印表機的工作處理功能列印檔案或標準輸入。</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>結束代碼：0 完成，1 失敗，2 用法錯誤，3 被面板拒絕，4 等待中。</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>不再等待：%1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>網路上</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>正在列印</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>不接受工作</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 個工作</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n 個工作</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>此印表機沒有資料夾清單</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>印表機的位址不明；請以 --address 指定</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>「%1」不是位址</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1：其他使用者看不到工作的任何選項。</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1：其他使用者能看到工作的下列內容：%2。</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>管理員可在 cupsd.conf 中該印表機的原則裡隱藏這些內容：</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>管理員可在 cupsd.conf 的 &lt;Policy %1&gt; 中隱藏這些內容：</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已鎖定</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder 沒有效果：此印表機不歸檔文件</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>無法記住輸入的內容：%1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>工作已傳送，但是：%1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>原始 (raw) 工作會略過驅動程式，因而也略過工作處理</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>印表機「%1」不提供工作處理</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>忽略 -m：它用於新工作</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i 變更已傳送的工作；請不要指定檔案</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i 在工作所在之處變更工作；請不要指定 -d 和 --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i 無法變更已傳送工作的工作處理</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait 需要一個要列印的工作</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>清單不能與工作的選項一起使用</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>未指定印表機；請以 -d 或 --ppd 指定</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd 需要 --dry-run 或 --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>只能從標準輸入讀取一項內容</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>不能是空的</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>必須是類似 18:30 (UTC) 的時間、hold、immediate、resume、restart，或列印伺服器的關鍵字（如 evening）</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>必須是類似 12 或 QUEUE-12 的工作</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>忽略 %1：%2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS 沒有表單</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS 沒有模式；請使用 -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>字元集一律是 UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>列印伺服器會偵測類型；請使用 -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember 和 --forget 不能同時指定 %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>-i、--dry-run、--list、--folders、--check、--list-presets 和 --delete-preset 只能使用一個</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>密碼錯誤。%1 用於 %2 的密碼</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>%1 用於 %2 的密碼</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1；請以 --server-password-file 指定</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>正在傳送文件 %1：%2 MiB，%3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>正在傳送文件 %1：%2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>變更已傳送的工作：-H、-n、-o、-P、-q、-t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>檔案中的密碼不會傳送給「%1」，它是網路上的印表機，未在列印伺服器上設定</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>「%1」未在列印伺服器上設定；將使用網路上的印表機：%2</translation>
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
        <translation>%1。</translation>
    </message>
</context>
<context>
    <name>PrintTexts</name>
    <message>
        <source>no printer is available</source>
        <translation>沒有可用的印表機</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>無法寫入 %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>開啟此部分</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>儲存對話方塊的圖片並結束</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>顯示啟動所用的時間並結束</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>顯示檔案或標準輸入的列印對話方塊。</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>結束代碼：0 已傳送，1 未傳送，2 用法錯誤。</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>正在連線</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>機蓋開啟</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>缺少驅動程式</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>顯影劑用完</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>顯影劑不足</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>門板開啟</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>過熱</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>正在預熱</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>正在保留新工作</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>缺少紙匣</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>墨水或碳粉用完</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>墨水或碳粉不足</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>廢碳粉盒即將滿</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>廢碳粉盒已滿</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>紙張用完</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>卡紙</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>紙張不足</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>需要紙張</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>正在暫停</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>離線</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>感光鼓已耗盡</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>感光鼓即將耗盡</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>需要處理</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>出紙匣即將滿</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>出紙匣已滿</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>缺少出紙匣</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>已關機</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>印表機記憶體已滿</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>部分停止</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>正在停止</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>碳粉用完</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>碳粉不足</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>信紙</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>法律用紙</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>行政用紙</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>小報</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>帳簿紙</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>半信紙</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>日本明信片</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>日本雙聯明信片</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Monarch 信封</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>%1 信封</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>%1 號信封</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>主紙匣</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>備用紙匣</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>卡匣</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>卡匣 %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>紙匣 %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手動進紙</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>多用途紙匣</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>信封進紙器</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>手動進信封</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>大容量紙匣</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>上方紙匣</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中間紙匣</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>下方紙匣</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>左側紙匣</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>右側紙匣</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>側邊紙匣</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>後方紙匣</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>中央紙匣</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>相片紙匣</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>光碟托盤</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>明信片紙匣</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>捲筒紙</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>備用捲筒紙</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>捲筒紙 %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>信頭紙</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>預印紙</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>預先打孔紙</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>再生紙</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>證券紙</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>厚紙</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>薄紙</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>塗佈紙</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>噴墨紙</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>高級紙</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>色紙</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>棉紙</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>卡片紙</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>投影片</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>信封</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>相片紙</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>光面相片紙</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>高光澤相片紙</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>半光面相片紙</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>緞面相片紙</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>霧面相片紙</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>連續報表紙</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>索引紙</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>膠片</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>光碟</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>上方出紙匣</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>中間出紙匣</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>下方出紙匣</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>左側出紙匣</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>右側出紙匣</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>中央出紙匣</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>側邊出紙匣</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>後方出紙匣</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>列印面朝上</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>列印面朝下</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>堆疊器 %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>堆疊器</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>信箱 %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>我的信箱</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>純黑，無灰階</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>裝訂</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>雙釘裝訂</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>三釘裝訂</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>邊緣裝訂</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>騎馬釘</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>打兩孔</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>打三孔</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>打四孔</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>打多孔</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>膠裝</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>加上封面</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>工作錯位堆疊</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>護貝</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>摺疊</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>對摺</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>信函摺</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z 形摺</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>半 Z 形摺</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>風琴摺</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>開門摺</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>雙開門摺</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>平行摺</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左側</translation>
    </message>
    <message>
        <source>top</source>
        <translation>頂端</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右側</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1（無邊界）</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>前置封面</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>後置封面</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>需要密碼</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>印表機 %1 要求您的密碼。</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>列印伺服器 %1 要求您的密碼。</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>使用者名稱或密碼錯誤。請再試一次。</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>網域:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>使用者名稱:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密碼:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>正在傳送工作</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 是資料夾。請選擇檔案。</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 超過可列印的上限 %2。</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>無法為列印複製 %1：%2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 是空的，沒有可列印的內容。</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 及其他 %n 個檔案</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>文件沒有頁面。沒有可列印的內容。</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>無法預覽。若要查看預覽，請安裝 cups。</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>轉換文件耗時過長，無法預覽。</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>無法預覽此類文件。</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>文件受密碼保護。請輸入密碼以列印。</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>文件已損毀，無法顯示。印表機可能無法列印。</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>文件已損毀，部分內容可能遺失。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>選擇…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>選擇文件</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>無法開啟文件。請安裝 qpdf 以開啟。</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>開啟文件耗時過長。</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>空間不足，無法儲存文件的副本。</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>文件已損毀，無法開啟。</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>密碼錯誤。還可以再試一次。</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>密碼錯誤。還可以再試 %n 次。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>尋找列印伺服器 %1 耗時過長</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>沒有名為 %1 的列印伺服器</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>無法以加密方式連線到列印伺服器 %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>無法連線到列印伺服器 %1。它正在執行嗎？</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>列印伺服器 %1 未讀完文件</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>列印伺服器的回應不完整</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>列印伺服器的回應過大</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>列印伺服器 %1 未在 %2 秒內回應</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>列印伺服器 %1 關閉了連線</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>列印伺服器 %1 重新導向到另一位址（HTTP 狀態 %2）；不會跟隨重新導向</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>列印伺服器 %1 要求密碼</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>列印伺服器 %1 的回應：%2（HTTP 狀態 %3）</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>無法讀取列印伺服器的回應</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>工作的選項</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>工作名稱</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>PIN 碼的摘要</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>PIN 碼</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>工作時間</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>資料夾 PIN 碼</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>使用者編號</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>帳號編號</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>列印伺服器沒有給工作編號</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>無法在「%1」上建立工作：%2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>無法取消工作 %1-%2：%3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>列印伺服器的回應中沒有工作</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>無法確定其他使用者能看到什麼：%1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1：第 %2 行：%3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>無法取得 %1 的 PPD：%2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>無法儲存 PPD：%1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>%1 的 PPD 過大</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>無法讀取標準輸入</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1：是資料夾</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>工作已停止</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>列印伺服器已停止該工作：%1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>此印表機不接受這種類型的檔案</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>此印表機不接受這種類型的檔案（%1）</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>無法列印 %1：%2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>列印伺服器拒絕了工作：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>「%1」不接受工作</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>「%1」不接受工作：%2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>沒有名為「%1」的印表機</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>無法開啟印表機「%1」：%2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>「工作處理」擴充功能沒有用於列印對話框的面板</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>面板沒有版面配置</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>無法將印表機的回應寫入暫存資料夾。磁碟已滿嗎？</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>印表機的回應不是資料夾清單</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>在程式旁和程式庫資料夾中都找不到 JobHandling.pde</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>無法記住資料夾：%1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>型號 %1 的工作處理</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>先前尚未列印過任何內容</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>預設組無法儲存此資料夾的名稱</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>沒有預設組「%1」；此印表機沒有預設組</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>沒有預設組「%1」；此印表機有：%2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>預設組「%1」已損毀，維持原狀</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>此印表機的預設組已損毀，未作變更</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>預設組名稱最多可有 %1 個字元；請選擇較短的名稱</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>無法讀取此印表機的預設組：%1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>預設組「%1」適用於另一印表機型號 %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>列印伺服器已不再認得此工作</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>無法取消工作 %1：%2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>印表機「%1」的使用者名稱或密碼錯誤</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>列印伺服器 %1 的使用者名稱或密碼錯誤</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>印表機「%1」要求密碼</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>無法設定印表機「%1」：%2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>印表機沒有回應</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>位址不明</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>連線被拒絕</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>連線已關閉</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>未及時回應</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>無法讀取回應</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>無法連線到印表機</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>沒有來自 %1 的資料夾清單：%2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1：是資料夾，不是 PPD 檔案</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>未設定預設印表機；請以 -d 選擇</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>它屬於另一台印表機</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>無法重新啟動工作 %1：%2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>無法變更工作 %1：%2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>At</source>
        <translation>指定時間</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>請輸入時間，例如 14:30。</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>正在等待印表機</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>正在等待其他 1 個工作</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>正在等待其他 %n 個工作</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>已保留：印表機要求密碼</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>保留到列印時間</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>保留到釋放為止</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在列印</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>正在列印第 %1 頁</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>正在列印第 %1 頁，共 %2 頁</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>已停止：印表機已暫停</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>在 %1 上等待，直到您在那裡輸入 PIN 碼</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>在 %1 上等待，直到您在那裡釋放</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>已列印</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>已列印，並保留在 %1 上以便再次列印</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>已列印一份，其餘各份在 %1 上等待</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>由 %1 取消</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>在印表機上取消</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>由列印伺服器停止</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>未列印</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>不確定工作是否已列印</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>正在連線到印表機</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>版面配置</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>更多選項</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>PDF 檔案中的頁面維持原狀。只能選擇頁面及其順序。</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>繪製頁面耗時過長，無法預覽。</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>無法預覽此類文件。</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>無法預覽。若要查看預覽，請安裝 poppler-utils。</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>無法讀取此 PDF 文件，因此無法預覽。</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一頁</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>頁</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>所有頁面</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>選取的頁面</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>文件到第 %1 頁為止。將列印的頁面：%2。</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>鎖定「%1」</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>若要取得資料夾名稱，請輸入印表機的位址。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>「%1」不是位址。請輸入印表機的名稱或 IP 位址。</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>此印表機不歸檔文件，因此選擇資料夾沒有效果。</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>已鎖定：會為此印表機記住此內容。</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>未鎖定：此內容僅用於此工作。</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>寬度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>公釐</translation>
    </message>
    <message>
        <source>in</source>
        <translation>英吋</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>自訂大小</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>請輸入 %1 到 %2 %3之間的寬度。</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>請輸入 %1 到 %2 %3之間的高度。</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>受保護的文件</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 受密碼保護。請輸入密碼以列印文件。</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>未選取任何頁面。</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>請安裝 qpdf 以儲存 PDF 檔案。</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>儲存耗時過長。</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>空間不足。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>無法儲存 %1。%2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>請輸入 %1 到 %2 之間的百分比。</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>預設組</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>沒有預設組</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>另存為預設組…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>刪除預設組</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已變更）</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>預設組：%1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>另存為預設組</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>包含 PIN 碼</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名稱:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>要取代預設組「%1」嗎？</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>只有 PDF 文件可以儲存為 PDF。</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>未選取任何頁面。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 頁，共 %2 頁</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>第 %1 張，共 %2 張</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>第 %1 張，共 %2 張，正面</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>第 %1 張，共 %2 張，背面</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1，1 頁</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1，%n 頁</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>總計：1 張紙</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>總計：%n 張紙</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>正在連線到印表機…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>將選取的頁面儲存到檔案。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>此印表機不支援 %1。工作將在沒有此設定的情況下列印。</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>另存為 PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>在 %1 上列印</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>未選取文件</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>正在讀取文件…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>文件很長，其餘部分會在列印時讀取。</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>無法預覽。應用程式會在您按下「列印」後產生頁面。</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>沒有文件</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>選擇文件</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文件 (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>工作 %1 已傳送到 %2。</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>已儲存為 %1。</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>工作未列印。%1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>儲存…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>請選擇要列印的文件。</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>正在取消工作…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>印表機:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>文件:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>此印表機不支援預設組中的 %1。其餘設定已套用。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>不保留</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>工作 %1：%2。</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>無法記住輸入的內容。</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>再次列印</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>取消工作</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>來自 %1 的 1 個資料夾</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>來自 %1 的 %n 個資料夾</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>列印伺服器上已沒有此印表機。它可能已被移除。</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>印表機</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名稱:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>描述:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>型號:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>位置:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>狀態:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>訊息:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>存量不明</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>印表機</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試一次</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>沒有印表機</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>正在尋找印表機…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>請輸入印表機的名稱。</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>按 Enter 鍵選擇 %1。</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>有多台印表機符合。請選擇其中一台。</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>沒有名為「%1」的印表機。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>印表機詳細資料</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>另存為 PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>不接受工作：%1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>不接受工作</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>已暫停：%1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在列印</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 個工作正在等待</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n 個工作正在等待</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>網路上</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>沒有接受工作的印表機。請在系統設定中檢查印表機，然後再試一次。</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>誰能看到此工作？</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>其他使用者可以看到此工作存在，但看不到任何詳細資料。</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>其他使用者可以看到%1。若要隱藏，請在列印伺服器的政策「%2」中加入以下幾行：</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已變更）</translation>
    </message>
</context>
</TS>
