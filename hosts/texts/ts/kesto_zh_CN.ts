<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>必须是 %1 或 %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>意外的参数</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>未知选项 %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 需要一个值</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 不接受值</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 不能与 %2 一起使用</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>请尝试“%1 --help”。</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 需要 %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>无法写入标准输出</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>该行过长</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>该行不是 UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>该行为空</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>没有可供询问的终端</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1：</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>必须在 0.1 到 3600 秒之间</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>份数必须在 %1 到 %2 之间</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>优先级必须在 %1 到 %2 之间</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>秒数必须在 %1 到 %2 之间</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 指定了两次</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>服务器无响应达到此时间时放弃（默认 5）</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>显示此文本或版本</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>用法：%1 [选项]... [文件]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>与通常的打印命令相同</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>快速归档没有 PIN 码。</translation>
    </message>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>作业不会保留在打印机上。请先开启“保留作业”。</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>只有自定义文件夹或受保护的文件夹才有 PIN 码。</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>此打印机通过用户编号而不是登录名来识别您。</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>此内容已锁定，系统会为此打印机记住它。要更改，请打开挂锁。</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>只有自定义文件夹才需要名称。请先选择“自定义文件夹”。</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>隐藏数字</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>显示数字</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Say who you are</source>
        <translation>说明您的身份</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>打印帮助</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>选择打印机</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>从列表中选择打印机。如果列表很长，请输入打印机名称的一部分，然后按 Enter。列表下方的一行会显示打印机是否就绪。</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>打印部分页面</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>选择“选定页面”，然后输入页码或页码范围，例如 1-3, 5。范围可以不写结尾：5- 会打印第 5 页及其后的所有页面。</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>双面打印</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>如果要像书本一样翻页，请选择“长边”；如果要像便笺本一样翻页，请选择“短边”。</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>查看将要打印的内容</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>使用 PIN 码将作业保留在打印机上</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>再次使用输入的内容</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>锁上输入项旁的挂锁后，会为此打印机记住该内容。要更改，请打开挂锁。</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>选择打印机上的文件夹</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>将设置保存为预设</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>按“预设”，然后选择“另存为预设”。要再次使用这些设置，请在那里选择该预设。只有选择包含 PIN 码时，才会保存 PIN 码。</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>查看他人能看到作业的哪些内容</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>取消作业</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>使用键盘</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt 加带下划线的字母会跳到相应的控件；Alt、Shift 加该字母会跳到其旁边的挂锁。Enter 打印，Esc 取消，F1 打开此帮助。光标位于 PIN 码中时，Ctrl+R 会显示其数字。</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>在“作业处理”下开启“保留作业”，并输入最多 8 位数字的 PIN 码。作业会在打印机中等待，直到有人在打印机上输入该 PIN 码。“打印后保留”会在打印后保留作业。“打印样张”会打印一份，并保留其余各份。</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>有些打印机会要求说明由谁打印。请在“用户和账户”下输入您的用户编号，或者登录名和密码。</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>预览显示纸张从打印机输出时的样子。使用预览下方的箭头或 Page Up 和 Page Down 翻页，使用 Ctrl 和鼠标滚轮放大页面。</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>将页面保存为 PDF 文件</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>在一张纸上打印多个页面</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>在“布局”中选择每张页数、页面顺序和边框。如果打印机可以制作小册子，“小册子”会排列页面，使折叠后的纸张可以像书一样阅读。</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>使页面适合纸张</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>在“布局”中，“缩放”决定如何处理比纸张大或小的页面。“适合纸张”会完整显示页面，“填满纸张”不留页边距，边缘可能被裁掉，“实际大小”保持原样。“自定义”的百分比适用于图像。</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>选择打印时间</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>在“作业”中，“打印”可以将作业保留在打印服务器上，直到指定的时间；选择“保留”时，直到您在系统的打印作业列表中释放作业。等待的作业中，优先级最高的先打印。</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>添加封面和账单信息</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>在“作业”中选择在文档之前或之后打印的封面。账单信息（例如项目编号）会与作业一起保存在打印服务器的记录中。</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>查找打印机的其他选项</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>“更多选项”包含打印机的所有其他选项。在筛选框中输入名称的一部分，即可只显示包含它的选项。</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>在打印机列表中选择“另存为 PDF”，然后按“保存”。文件包含您选择的页面。只有 PDF 文档可以保存，并且只能选择页面及其顺序。</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>打印受密码保护的文档</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>按“打印”时，对话框会询问文档的密码，然后打印一份不带密码的副本。该副本只有您可以读取，打印后会被删除。</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>在“作业处理”下开启“保留作业”。在“文档归档”下选择“自定义文件夹”，然后输入文件夹的名称。“获取文件夹名称”会向打印机查询其文件夹，以便您从列表中选择。</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>在摘要中按“谁能看到此作业？”。结果会说明打印服务器向其他用户显示作业的哪些详细信息，以及如何隐藏它们。</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>在发送作业时按“取消”。在对话框跟踪作业时按“取消作业”；“再次打印”会重新发送失败的作业。对话框关闭后，请使用系统的打印作业列表。</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Current page</source>
        <translation>当前页</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>所选内容</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>自定义 %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>自定义 %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每张页数</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>页面顺序</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>纸张大小</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>纸张来源</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>纸张类型</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>双面打印</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>出纸盒</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>装订</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>长边</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>短边</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>逆序</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>仅打印</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小册子</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>账单信息</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>所有页面</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>奇数页</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>偶数页</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>反向横向</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>反向纵向</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>从左到右，从上到下</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>从左到右，从下到上</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>从右到左，从上到下</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>从右到左，从下到上</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>从上到下，从左到右</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>从上到下，从右到左</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>从下到上，从左到右</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>从下到上，从右到左</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>单线</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>粗单线</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>双线</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>粗双线</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>适合纸张</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>填满纸张</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
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
        <translation>紧急</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>非密</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>机密</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>保密</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>秘密</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>绝密</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>于 %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>无法在“%1”上双面打印。</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1“%2”不能与%3“%4”同时使用。</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>关闭双面打印</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>将%1设为%2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 份</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>请输入页码或页码范围，例如 1-3, 5。</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>文档到第 %1 页为止。请输入不超过 %1 的页码。</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n 份</numerusform>
        </translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>装订</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1：此打印机不提供</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>此打印机不询问打印者</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>最多 %n 位数字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>最多 %n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 不能与 --folder quick 一起使用</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 需要 --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 需要带 PIN 码的文件夹或自定义文件夹的 --folder NAME</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 不能与用户编号一起使用</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN 码</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>所保留作业的 PIN 码</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick、main 或文件夹名称</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>文件夹 PIN 码</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>文件夹 PIN 码</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>登录名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>登录名的密码</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>代替登录名的用户编号</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>账户编号</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>打印机上的用户名</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>打印机上的作业名</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>缺少用户编号；请用 %1 指定</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>缺少登录名；请用 %1 指定</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p 即 -q，-w 即 -m；其余不起作用</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>不发送作业时代替队列</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>显示作业的设置而不发送任何内容；只保存 --remember、--forget 或 --save-preset 要求的内容</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>显示面板的摘要而不是设置</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>列出队列，或提供作业处理的队列，以及网络上的打印机</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>获取、记住并列出打印机的文件夹</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>显示服务器的其他用户能看到作业的哪些选项，以及如何隐藏</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>显示作业的进展，直到已打印或保留在打印机上；否则以 1 结束，如果 SECONDS 之后仍在等待则以 4 结束</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>显示 JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>服务器或打印机要求的密码</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>保留作业：不打印、打印之后或打印样张之后</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>不保留作业</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>从文件或标准输入（“-”）的第一行读取 X（pin、folder-pin、password），或在终端询问：其他用户可能看到命令行</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>为此队列的后续作业记住内容 X</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>不再记住</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>从此队列的预设开始</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>将设置保存为预设；PIN 码仅在使用 --with-codes 时保存</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>只执行此操作，针对 -d 或 --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>使用打印机的作业处理功能打印文件或标准输入。</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>退出代码：0 完成，1 失败，2 用法错误，3 被面板拒绝，4 等待中。</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>不再等待：%1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>网络上的打印机</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 个作业</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n 个作业</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>此打印机没有文件夹列表</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>打印机的地址未知；请用 --address 指定</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>“%1”不是地址</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1：其他用户看不到作业的任何选项。</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1：其他用户能看到作业的以下内容：%2。</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>管理员可在 cupsd.conf 中该打印机的策略里隐藏这些内容：</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>管理员可在 cupsd.conf 的 &lt;Policy %1&gt; 中隐藏这些内容：</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder 没有效果：此打印机不归档文档</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>无法记住输入的内容：%1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>作业已发送，但是：%1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>原始 (raw) 作业绕过驱动程序，因而也绕过作业处理</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>打印机“%1”不提供作业处理</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>忽略 -m：它用于新作业</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i 更改已发送的作业；请不要指定文件</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i 在作业所在之处更改作业；请不要指定 -d 和 --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i 无法更改已发送作业的作业处理</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait 需要一个要打印的作业</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>列表不能与作业的选项一起使用</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>未指定打印机；请用 -d 或 --ppd 指定</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd 需要 --dry-run 或 --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>只能从标准输入读取一项内容</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>不能为空</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>必须是类似 18:30 (UTC) 的时间、hold、immediate、resume、restart，或打印服务器的关键字（如 evening）</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>必须是类似 12 或 QUEUE-12 的作业</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>忽略 %1：%2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS 没有表单</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS 没有模式；请使用 -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>字符集始终是 UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>打印服务器会检测类型；请使用 -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember 和 --forget 不能同时指定 %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>-i、--dry-run、--list、--folders、--check、--list-presets 和 --delete-preset 只能使用一个</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>密码错误。%1 用于 %2 的密码</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>%1 用于 %2 的密码</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1；请用 --server-password-file 指定</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>正在发送文档 %1：%2 MiB，%3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>正在发送文档 %1：%2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>更改已发送的作业：-H、-n、-o、-P、-q、-t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>文件中的密码不会发送给“%1”，它是网络上的打印机，未在打印服务器上设置</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>“%1”未在打印服务器上设置；将使用网络上的打印机：%2</translation>
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
        <translation>没有可用的打印机</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>打开此部分</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>保存对话框的图片并退出</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>显示启动所用的时间并退出</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>显示文件或标准输入的打印对话框。</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>退出代码：0 已发送，1 未发送，2 用法错误。</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>盖子打开</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>缺少驱动程序</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>显影剂用尽</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>显影剂不足</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>门打开</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>过热</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>正在预热</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>新任务被保留</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>缺少纸盒</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>墨水或碳粉用尽</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>墨水或碳粉不足</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>废粉盒将满</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>废粉盒已满</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>缺纸</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>纸张不足</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>需要装纸</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>正在暂停</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>脱机</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>感光鼓已到寿命</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>感光鼓寿命将尽</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>需要处理</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>出纸盒将满</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>出纸盒已满</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>缺少出纸盒</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>已关机</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>打印机内存已满</translation>
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
        <translation>无响应</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>碳粉用尽</translation>
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
        <translation>信纸</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>法律专用纸</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>行政公文纸</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>小报</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>账簿纸</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>半信纸</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>日本明信片</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>日本双联明信片</translation>
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
        <translation>%1 号信封</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>主纸盒</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>备用纸盒</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>纸盒</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>纸盒 %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>纸盒 %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手动进纸</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>多功能纸盒</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>信封进纸器</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>手动进信封</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>大容量纸盒</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>上纸盒</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中纸盒</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>下纸盒</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>左纸盒</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>右纸盒</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>侧纸盒</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>后纸盒</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>中央纸盒</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>照片纸盒</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>光盘托盘</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>明信片纸盒</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>卷纸</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>备用卷纸</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>卷纸 %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>普通纸</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>信头纸</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>预印纸</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>预打孔纸</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>再生纸</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>证券纸</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>厚纸</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>薄纸</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>涂层纸</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>喷墨纸</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>高级纸</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>彩色纸</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>棉纸</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>卡片纸</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明胶片</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>信封</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>相纸</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>光面相纸</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>高光相纸</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>半光面相纸</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>缎面相纸</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>哑光相纸</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>连续纸</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>索引纸</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>胶片</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>光盘</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>上出纸盒</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>中出纸盒</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>下出纸盒</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>左出纸盒</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>右出纸盒</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>中央出纸盒</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>侧出纸盒</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>后出纸盒</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>面朝上</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>面朝下</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>堆纸器 %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>堆纸器</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>邮箱 %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>我的邮箱</translation>
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
        <translation>纯黑，无灰度</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>装订</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>双钉装订</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>三钉装订</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>边缘装订</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>鞍式装订</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小册子</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>打两孔</translation>
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
        <translation>胶装</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>添加封面</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>错位堆叠</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>覆膜</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>对折</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>信函折</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z 形折</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>半 Z 形折</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>风琴折</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>门形折</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>双门形折</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>平行折</translation>
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
        <translation>左侧</translation>
    </message>
    <message>
        <source>top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右侧</translation>
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
        <translation>%1（无边距）</translation>
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
        <translation>后置封面</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>需要密码</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>打印机 %1 要求您输入密码。</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>打印服务器 %1 要求您输入密码。</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>用户名或密码错误。请重试。</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>域:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>用户名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>正在发送作业</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 及其他 %n 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 是空的，没有可打印的内容。</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 是文件夹。请选择文件。</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 超过了可打印的上限 %2。</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>无法为打印复制 %1：%2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>文档没有页面。没有可打印的内容。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>文档已损坏，无法显示。打印机可能无法打印。</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>文档已损坏，部分内容可能缺失。</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>文档受密码保护。请输入密码以打印。</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>无法预览。请安装 cups 以查看预览。</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>转换文档耗时过长，无法预览。</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>此类文档无法预览。</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>选择文档</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>打开文档耗时过长。</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>空间不足，无法保存文档的副本。</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>文档已损坏，无法打开。</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>密码错误。还可以尝试一次。</translation>
    </message>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>无法打开文档。请安装 qpdf 以打开。</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>密码错误。还可以尝试 %n 次。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>the digest of the pass code</source>
        <translation>PIN 码的摘要</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>PIN 码</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>作业时间</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>文件夹 PIN 码</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>用户编号</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>账户编号</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>作业名</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>无法确定其他用户能看到什么：%1</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>作业处理扩展没有用于打印对话框的面板</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>面板没有布局</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>在程序旁和库文件夹中都找不到 JobHandling.pde</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1：第 %2 行：%3</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>无法保存 PPD：%1</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>无法获取 %1 的 PPD：%2</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>预设无法保存此文件夹的名称</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>没有预设“%1”；此打印机没有预设</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>没有预设“%1”；此打印机有：%2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>预设“%1”已损坏，保持原样</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>此打印机的预设已损坏，未作更改</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>预设“%1”用于另一打印机型号 %2</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>无法读取标准输入</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1：是文件夹</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>作业已停止</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>打印服务器的应答不完整</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>无法读取打印服务器的响应</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>打印服务器的应答过大</translation>
    </message>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>查找打印服务器 %1 用时过长</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>没有名为 %1 的打印服务器</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>无法以加密方式连接打印服务器 %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>无法连接到打印服务器 %1。它在运行吗？</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>打印服务器 %1 未读完文档</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>打印服务器 %1 未在 %2 秒内应答</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>打印服务器 %1 关闭了连接</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>打印服务器 %1 重定向到另一地址（HTTP 状态 %2）；不跟随重定向</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>打印服务器 %1 要求输入密码</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>打印服务器 %1 的响应：%2（HTTP 状态 %3）</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>打印服务器没有给作业编号</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>无法在“%1”上创建作业：%2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>无法取消作业 %1-%2：%3</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>%1 的 PPD 过大</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>打印服务器拒绝了作业：%1</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>无法打印 %1：%2</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>无法打开打印机“%1”：%2</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>打印服务器已结束该作业：%1</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>预设名称最多可有 %1 个字符；请选择较短的名称</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>无法读取此打印机的预设：%1</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>作业的选项</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>打印服务器的应答中没有作业</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>无法记住文件夹：%1</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>无法将打印机的应答写入临时文件夹。磁盘已满吗？</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>打印机的应答不是文件夹列表</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>此打印机不接受这种类型的文件（%1）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>“%1”不接受作业</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>“%1”不接受作业：%2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>没有名为“%1”的打印机</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>此打印机不接受这种类型的文件</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>型号 %1 的作业处理</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>尚未打印过任何内容</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>打印服务器已没有此作业的记录</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>无法取消作业 %1：%2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>打印机“%1”的用户名或密码错误</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>打印服务器 %1 的用户名或密码错误</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>打印机“%1”要求输入密码</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>无法设置打印机“%1”：%2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>打印机没有响应</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>地址未知</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>连接已关闭</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>未及时响应</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>无法读取响应</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>无法连接打印机</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>无法从 %1 获取文件夹列表：%2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1：是文件夹，不是 PPD 文件</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>未设置默认打印机；请用 -d 选择</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>它属于另一台打印机</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>无法重新启动作业 %1：%2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>无法更改作业 %1：%2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>At</source>
        <translation>定时</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>请输入时间，例如 14:30。</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>正在等待打印机</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>正在等待另外 1 个作业</translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>已保留：打印机需要密码</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>保留至打印时间</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>保留至被释放</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>正在打印第 %1 页</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>正在打印第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>已停止：打印机已暂停</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>正在 %1 上等待您输入 PIN 码</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>正在 %1 上等待您释放</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>已打印</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>已打印，并保留在 %1 上以便再次打印</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>已打印一份，其余在 %1 上等待</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>已被 %1 取消</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>已在打印机上取消</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>已被打印服务器停止</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>未打印</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>无法确定作业是否已打印</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>正在等待其他 %n 个作业</numerusform>
        </translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>正在连接打印机</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>作业</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>更多选项</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>PDF 文件中的页面保持原样。只能选择页面及其顺序。</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>绘制页面耗时过长，无法显示预览。</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>此类文档无法预览。</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>无法预览。要查看预览，请安装 poppler-utils。</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>无法读取此 PDF 文档，因此无法预览。</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>所有页面</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>选定页面</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>文档到第 %1 页为止。将打印的页面：%2。</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>锁定“%1”</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>要获取文件夹名称，请输入打印机的地址。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>“%1”不是地址。请输入打印机的名称或 IP 地址。</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>此打印机不归档文档，因此选择文件夹没有效果。</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>已锁定：系统会为此打印机记住此内容。</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>未锁定：此内容仅用于此作业。</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>毫米</translation>
    </message>
    <message>
        <source>in</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>自定义大小</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>请输入 %1 到 %2 %3之间的宽度。</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>请输入 %1 到 %2 %3之间的高度。</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>受保护的文档</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 受密码保护。请输入密码以打印文档。</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>Saving takes too long.</source>
        <translation>保存耗时过长。</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>空间不足。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>未选择任何页面。</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>请安装 qpdf 以保存 PDF 文件。</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>无法保存 %1。%2</translation>
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
        <translation>自定义</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>请输入 %1 到 %2 之间的百分比。</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>另存为预设…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>删除预设</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>另存为预设</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称:</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>包含 PIN 码</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>没有预设</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>预设：%1</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>要替换预设“%1”吗？</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>第 %1 张，共 %2 张</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>第 %1 张，共 %2 张，正面</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>第 %1 张，共 %2 张，背面</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>总计：1 张纸</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>未选择任何页面。</translation>
    </message>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>只有 PDF 文档可以保存为 PDF。</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1，1 页</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1，%n 页</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>总计：%n 张纸</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>打印机:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>文档:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>无文档</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>在 %1 上打印</translation>
    </message>
    <message>
        <source>Connecting to the printer…</source>
        <translation>正在连接打印机…</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>此打印机不支持 %1。作业将在没有此设置的情况下打印。</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>未选择文档</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>正在读取文档…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>文档很长，其余部分将在打印时读取。</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>无法预览。应用程序会在您按下“打印”后生成页面。</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>选择文档</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>作业 %1 已发送到 %2。</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>作业未打印。%1</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>请选择要打印的文档。</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>正在取消作业…</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>不保留</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>另存为 PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>将所选页面保存到文件。</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>已保存为 %1。</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>此打印机不支持预设中的 %1。其余设置已应用。</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>作业 %1：%2。</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>无法记住其输入内容。</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>再次打印</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>取消作业</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>来自 %1 的 1 个文件夹</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>来自 %1 的 %n 个文件夹</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>打印服务器上已没有此打印机。它可能已被移除。</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>描述:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>型号:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>位置:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>状态:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>消息:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>余量未知</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>没有打印机</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>请输入打印机的名称。</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>按 Enter 键选择 %1。</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>有多台打印机匹配。请选择其中一台。</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>没有名为“%1”的打印机。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>打印机详细信息</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>不接受作业：%1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>已暂停：%1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 个作业正在等待</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>另存为 PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n 个作业正在等待</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>网络上的打印机</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>没有接受作业的打印机。请在系统设置中检查打印机，然后重试。</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>谁能看到此作业？</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>其他用户可以看到存在此作业，但看不到任何详细信息。</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>其他用户可以看到%1。要隐藏这些内容，请在打印服务器的策略“%2”中添加以下几行：</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
</context>
</TS>
