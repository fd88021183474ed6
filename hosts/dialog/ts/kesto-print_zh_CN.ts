<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer: turn that on first.</source>
        <translation>作业不会保留在打印机上，请先开启“保留作业”。</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>快速归档没有 PIN 码。</translation>
    </message>
    <message>
        <source>Only a custom folder has a name to type.</source>
        <translation>只有自定义文件夹才能输入名称。</translation>
    </message>
    <message>
        <source>Only a custom folder, or one that is guarded, has a pass code.</source>
        <translation>只有自定义文件夹或受保护的文件夹才有 PIN 码。</translation>
    </message>
    <message>
        <source>The user is told by the user number, not by the login name.</source>
        <translation>当前用用户编号而非登录名来标识用户。</translation>
    </message>
    <message>
        <source>Locked and remembered for this printer: open the padlock to change it.</source>
        <translation>已锁定并为此打印机记住：要更改，请打开挂锁。</translation>
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
        <source>Hold a job on the printer</source>
        <translation>将作业保留在打印机上</translation>
    </message>
    <message>
        <source>Turn on Retention on the pane Job Handling and give a pass code of up to 8 digits. The job waits in the printer until you enter the code there.</source>
        <translation>在“作业处理”选项卡上开启“保留作业”，并输入最多 8 位数字的 PIN 码。作业会在打印机中等待，直到您在打印机上输入该 PIN 码。</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>说明您的身份</translation>
    </message>
    <message>
        <source>Where the printer counts pages, give your user number or your login name on the page User and Account.</source>
        <translation>如果打印机统计页数，请在“用户和账户”选项卡上输入用户编号或登录名。</translation>
    </message>
    <message>
        <source>Have an entry remembered</source>
        <translation>记住输入的内容</translation>
    </message>
    <message>
        <source>Close the padlock beside an entry. It is offered again for this printer; open the padlock to change it.</source>
        <translation>锁上输入项旁的挂锁。下次使用此打印机时会再次提供该内容；要更改，请打开挂锁。</translation>
    </message>
    <message>
        <source>Choose a folder of the printer</source>
        <translation>选择打印机上的文件夹</translation>
    </message>
    <message>
        <source>Get Folder Names asks the printer at the address above for its folders.</source>
        <translation>“获取文件夹名称”会向其上方地址处的打印机查询文件夹。</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Alt and the underlined letter go to an entry, with Shift to its padlock. Enter prints, Escape cancels, Ctrl+R shows a pass code while the cursor is in it.</source>
        <translation>Alt 加带下划线的字母跳到输入项，再加 Shift 则跳到其挂锁。Enter 打印，Esc 取消；光标位于 PIN 码中时，Ctrl+R 显示该 PIN 码。</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>打印帮助</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
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
        <source>Print quality</source>
        <translation>打印质量</translation>
    </message>
</context>
<context>
    <name>PlainText</name>
    <message>
        <source>%1:</source>
        <comment>a label</comment>
        <translation>%1:</translation>
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
    <message>
        <source>%1 is a folder</source>
        <translation>%1 是文件夹</translation>
    </message>
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
        <source>%1 is larger than %2, the most that is read.</source>
        <translation>%1 超过了可读取的上限 %2。</translation>
    </message>
    <message>
        <source>%1 cannot be stored: %2</source>
        <translation>无法存储 %1：%2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 是空的，没有可打印的内容。</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>文档</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>文档没有页面。没有可打印的内容。</translation>
    </message>
    <message>
        <source>The document is protected by a password and cannot be printed. Save a copy without the password and print that.</source>
        <translation>文档受密码保护，无法打印。请保存一份没有密码的副本并打印该副本。</translation>
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
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose the document</source>
        <translation>选择文档</translation>
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
        <source>the print server&apos;s answer does not have the job</source>
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
</context>
<context>
    <name>kesto::GeneralPane</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>These:</source>
        <translation>指定:</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>Pages to print, such as 1-3, 5</source>
        <translation>要打印的页面，例如 1-3, 5</translation>
    </message>
    <message>
        <source>The printer cannot do these together: %1.</source>
        <translation>打印机无法同时使用以下设置：%1。</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>请输入页码或页码范围，例如 1-3, 5。</translation>
    </message>
    <message>
        <source>The document ends with page %1. Enter pages up to it.</source>
        <translation>文档到第 %1 页为止。请输入不超过该页的页码。</translation>
    </message>
    <message>
        <source>The document ends with page %1. Only %2 will be printed.</source>
        <translation>文档到第 %1 页为止。只会打印 %2。</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>There is no preview: drawing the page takes too long.</source>
        <translation>无法预览：绘制页面耗时过长。</translation>
    </message>
    <message>
        <source>There is no preview of this kind of document.</source>
        <translation>此类文档无法预览。</translation>
    </message>
    <message>
        <source>There is no preview: the program pdftoppm of poppler-utils is missing.</source>
        <translation>无法预览：缺少 poppler-utils 中的程序 pdftoppm。</translation>
    </message>
    <message>
        <source>There is no preview: the document cannot be read as PDF.</source>
        <translation>无法预览：文档无法作为 PDF 读取。</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>锁定“%1”</translation>
    </message>
    <message>
        <source>On: the entry is locked, and remembered for this printer.</source>
        <translation>开：内容已锁定，并为此打印机记住。</translation>
    </message>
    <message>
        <source>Off: the entry is for this job alone.</source>
        <translation>关：内容仅用于此作业。</translation>
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
        <source>This printer does not file documents: the choice of a folder has no effect.</source>
        <translation>此打印机不归档文档：选择文件夹没有效果。</translation>
    </message>
</context>
<context>
    <name>kesto::PortalPrint</name>
    <message>
        <source>Current page</source>
        <translation>当前页</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>所选内容</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>No presets for this printer</source>
        <translation>此打印机没有预设</translation>
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
        <source>Keep the pass codes, too</source>
        <translation>同时保存 PIN 码</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称:</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>No pages are chosen.</source>
        <translation>未选择任何页面。</translation>
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
        <source>Total: %1 sheets of paper</source>
        <translation>总计：%1 张纸</translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Choose the document</source>
        <translation>选择文档</translation>
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
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Asking the print server…</source>
        <translation>正在查询打印服务器…</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>The document is being read…</source>
        <translation>正在读取文档…</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>无文档</translation>
    </message>
    <message>
        <source>Job %1 sent to %2</source>
        <translation>作业 %1 已发送到 %2</translation>
    </message>
    <message>
        <source>Not printed: %1</source>
        <translation>未打印：%1</translation>
    </message>
    <message>
        <source>There is no document to print yet.</source>
        <translation>还没有要打印的文档。</translation>
    </message>
    <message>
        <source>Stopping the job…</source>
        <translation>正在停止作业…</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>在 %1 上打印</translation>
    </message>
    <message>
        <source>The application draws the pages after the choice.</source>
        <translation>应用程序在选择之后绘制页面。</translation>
    </message>
    <message>
        <source>Job %1 sent to %2; its entries cannot be remembered</source>
        <translation>作业 %1 已发送到 %2；无法记住其条目</translation>
    </message>
    <message>
        <source>The document is long. Print reads the rest.</source>
        <translation>文档很长，其余部分将在按下“打印”后读取。</translation>
    </message>
    <message>
        <source>This printer cannot do %1. The job is printed without it.</source>
        <translation>此打印机不支持 %1。作业将不使用它打印。</translation>
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
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>There is no printer that takes jobs.</source>
        <translation>没有可接受作业的打印机。</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview of the page</source>
        <translation>页面预览</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Who sees this job?</source>
        <translation>谁能看到此作业?</translation>
    </message>
    <message>
        <source>Other users of the print server see that there is a job, and no more of it.</source>
        <translation>打印服务器的其他用户只能看到有一个作业，看不到其他内容。</translation>
    </message>
    <message>
        <source>Other users of the print server see: %1. These lines in its policy %2 hide it:</source>
        <translation>打印服务器的其他用户能看到: %1。在其策略 %2 中加入以下几行即可隐藏:</translation>
    </message>
</context>
</TS>
