<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>%1 または %2 を指定してください</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>予期しない引数です</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>%1 は不明なオプションです</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 には値が必要です</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 に値は指定できません</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 は %2 と同時に使用できません</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>「%1 --help」を参照してください。</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 には %2 が必要です</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>標準出力に書き込めません</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>行が長すぎます</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>行が UTF-8 ではありません</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>行が空です</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>入力を求める端末がありません</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>中断されました</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>0.1 から 3600 秒の範囲で指定してください</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>部数は %1 から %2 の範囲で指定してください</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>優先度は %1 から %2 の範囲で指定してください</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>秒数は %1 から %2 の範囲で指定してください</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 が 2 回指定されています</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>サーバーの無応答がこの秒数続いたら中止する (既定値: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>このテキスト、またはバージョンを表示する</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>使い方: %1 [オプション]... [ファイル]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>通常の印刷コマンドと同じ</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>クイック保存には暗証番号はありません。</translation>
    </message>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>ジョブはプリンターに保留されません。先に「ジョブの保留」をオンにしてください。</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>暗証番号があるのは、カスタムフォルダーと保護されたフォルダーだけです。</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>このプリンターは、ログイン名ではなくユーザー番号でユーザーを識別します。</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>この入力内容はロックされ、このプリンター用に記憶されています。変更するには南京錠を開いてください。</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>名前が必要なのはカスタムフォルダーだけです。先に「カスタムフォルダー」を選択してください。</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>数字を隠す</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>数字を表示</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Say who you are</source>
        <translation>ユーザーを指定する</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>印刷のヘルプ</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>プリンターを選ぶ</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>一覧からプリンターを選びます。一覧が長いときは、プリンター名の一部を入力して Enter を押します。一覧の下の行に、プリンターの準備ができているかどうかが表示されます。</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>一部のページを印刷する</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>「指定したページ」を選び、ページ番号または範囲を入力します (例: 1-3, 5)。範囲の終わりは省略できます。5- と入力すると、5 ページ以降がすべて印刷されます。</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>両面に印刷する</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>本のようにめくる場合は「長辺とじ」を、メモ帳のようにめくる場合は「短辺とじ」を選びます。</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>印刷される内容を確認する</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>ジョブを暗証番号付きでプリンターに保留する</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>入力内容を再利用する</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>入力欄の横にある南京錠を閉じます。入力内容がこのプリンター用に記憶されます。変更するには南京錠を開きます。</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>プリンターのフォルダーを選ぶ</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>設定をプリセットとして保存する</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>「プリセット」を押して「プリセットとして保存」を選びます。設定を再び使うには、そこでプリセットを選びます。暗証番号は、含めるように指定した場合にだけ保存されます。</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>ジョブについて他の人に何が見えるかを確認する</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>ジョブをキャンセルする</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>キーボードを使う</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt と下線付きの文字で項目に移動し、Alt と Shift とその文字で横の南京錠に移動します。Enter で印刷、Esc でキャンセル、F1 でこのヘルプを表示します。暗証番号にカーソルがあるときは、Ctrl+R で数字を表示します。</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>「ジョブ管理」で「ジョブの保留」をオンにし、8 桁までの暗証番号を入力します。プリンターで暗証番号が入力されるまで、ジョブはプリンター内で待機します。「印刷後に保留」では、印刷した後もジョブが残ります。「試し印刷」では 1 部だけを印刷し、残りを保留します。</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>印刷するユーザーの指定が必要なプリンターがあります。「ユーザーとアカウント」で、ユーザー番号、またはログイン名とパスワードを入力します。</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>プレビューには、プリンターから出てくる用紙がそのまま表示されます。下の矢印または Page Up と Page Down でページをめくり、Ctrl とマウスホイールで拡大します。</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>ページを PDF ファイルとして保存する</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>1 枚に複数のページを印刷する</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>「レイアウト」で、1 枚あたりのページ数、ページの順序、枠線を選びます。小冊子を作成できるプリンターでは、「小冊子」を選ぶと、折った用紙を本のように読めるようにページが配置されます。</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>ページを用紙に合わせる</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>「レイアウト」の「拡大縮小」で、用紙より大きいページや小さいページの扱いを選びます。「用紙に合わせる」はページ全体を印刷し、「用紙全体に印刷」は余白を残さず、端が切れることがあります。「実際のサイズ」は大きさを変えません。「カスタム」のパーセント値は画像に適用されます。</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>印刷する時を選ぶ</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>「ジョブ」の「印刷」で、指定した時刻まで、または「保留」ではシステムの印刷ジョブの一覧で解除するまで、ジョブをプリントサーバーに保留できます。待機中のジョブは、優先度の高いものから印刷されます。</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>表紙と課金情報を追加する</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>「ジョブ」で、文書の前または後に印刷する表紙を選びます。プロジェクト番号などの課金情報は、ジョブとともにプリントサーバーの記録に残ります。</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>プリンターの他のオプションを探す</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>「その他のオプション」には、プリンターの他のすべてのオプションがあります。フィルターに名前の一部を入力すると、それを含むオプションだけが表示されます。</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>プリンターの一覧で「PDF として保存」を選び、「保存」を押します。ファイルには選択したページが保存されます。保存できるのは PDF 文書だけで、選べるのはページとその順序だけです。</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>パスワードで保護された文書を印刷する</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>「印刷」を押すと、文書のパスワードの入力を求められます。パスワードのない、あなただけが読めるコピーが印刷され、その後削除されます。</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>「ジョブ管理」で「ジョブの保留」をオンにします。「文書の保存先」で「カスタムフォルダー」を選び、フォルダーの名前を入力します。「フォルダー名を取得」を押すと、プリンターのフォルダーが取得され、一覧から選べるようになります。</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>概要で「このジョブを見ることができるのは?」を押します。プリントサーバーがジョブのどの内容を他のユーザーに見せるか、またその隠し方が表示されます。</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>ジョブの送信中に「キャンセル」を押します。ダイアログがジョブの経過を表示している間は、「ジョブをキャンセル」を押します。「もう一度印刷」を押すと、失敗したジョブがもう一度送信されます。ダイアログが閉じた後は、システムの印刷ジョブの一覧を使います。</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Current page</source>
        <translation>現在のページ</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>選択した部分</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>カスタム %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>カスタム %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>ページの順序</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大縮小</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>排紙トレイ</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>印刷対象</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>用紙の向き</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>枠線</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>課金情報</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>奇数ページ</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>偶数ページ</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>横 (逆向き)</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>縦 (逆向き)</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>左から右、上から下</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>左から右、下から上</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>右から左、上から下</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>右から左、下から上</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>上から下、左から右</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>上から下、右から左</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>下から上、左から右</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>下から上、右から左</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>一重線</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>太い一重線</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>二重線</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>太い二重線</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>用紙全体に印刷</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>今すぐ</translation>
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
        <translation>至急</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>機密指定なし</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>機密</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>部外秘</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>極秘</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>最高機密</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>%1 に印刷</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>%1 には両面印刷できません。</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1「%2」は %3「%4」と同時に使用できません。</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>両面印刷を解除</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1 を %2 に変更</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 部</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>ページ番号または範囲を入力してください (例: 1-3, 5)。</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>文書は %1 ページまでです。%1 までのページ番号を入力してください。</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n 部</numerusform>
        </translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: このプリンターでは利用できません</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>このプリンターは印刷する人を確認しません</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 は%2です</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>最大 %n 桁</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>最大 %n 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 は --folder quick と同時に使用できません</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 には --folder NAME が必要です</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 には、暗証番号のあるフォルダーまたはカスタムフォルダーの --folder NAME が必要です</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 はユーザー番号と同時に使用できません</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>暗証番号</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>保留するジョブの暗証番号</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick、main またはフォルダー名</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>フォルダーの暗証番号</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>フォルダーの暗証番号</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>ログイン名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>ログイン名のパスワード</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>ログイン名の代わりのユーザー番号</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>アカウント番号</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>プリンターでのユーザー名</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>プリンターでのジョブ名</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>ユーザー番号がありません。%1 で指定してください</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>ログイン名がありません。%1 で指定してください</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p は -q、-w は -m と同じ。他は効果なし</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>ジョブを送信しないときにキューの代わりにする</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>ジョブの設定を表示し、何も送信しない。保存するのは --remember、--forget または --save-preset で指定したものだけ</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>設定ではなくパネルの概要を表示する</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>キュー、またはジョブ管理に対応するキューと、ネットワーク上のプリンターを一覧表示する</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>プリンターのフォルダーを取得、記憶し、一覧表示する</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>ジョブのオプションのうちサーバーの他のユーザーに見えるものと、隠す方法を表示する</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>ジョブが印刷されるかプリンターで保留されるまで、経過を表示する。それ以外は 1、SECONDS 後もまだ待っていれば 4 で終了する</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON を表示する</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>サーバーまたはプリンターが求めるパスワード</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>ジョブを保留する: 印刷前、印刷後、または試し印刷後</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>ジョブを保留しない</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>X (pin、folder-pin、password) をファイルまたは標準入力 (「-」) の最初の行から読み取るか、端末で入力する: コマンドラインは他のユーザーに見えることがある</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>入力内容 X をこのキューの次のジョブ用に記憶する</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>記憶をやめる</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>このキューのプリセットを使う</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>設定をプリセットとして保存する。暗証番号は --with-codes を付けたときだけ保存する</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>これだけを行う (-d または --ppd を対象)</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>ファイルまたは標準入力を、プリンターのジョブ管理を使って印刷します。</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>終了コード: 0 完了、1 失敗、2 使い方の誤り、3 パネルが拒否、4 待機中。</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>待機を終了しました: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>ネットワーク上</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>ジョブ 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>ジョブ %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>このプリンターにはフォルダー一覧がありません</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>プリンターのアドレスが不明です。--address で指定してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>「%1」はアドレスではありません</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: 他のユーザーにはジョブのオプションがまったく見えません。</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: 他のユーザーに見えるジョブの情報: %2。</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>管理者は cupsd.conf のプリンターのポリシーで、これを非表示にできます:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>管理者は cupsd.conf の &lt;Policy %1&gt; で、これを非表示にできます:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder は効果がありません: このプリンターは文書を保存しません</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>入力内容を記憶できません: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>ジョブは送信されましたが、問題があります: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>raw ジョブはドライバーを通らないため、ジョブ管理も働きません</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>プリンター「%1」はジョブ管理に対応していません</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m は無視されます: 新しいジョブ用です</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i は送信済みのジョブを変更します。ファイルは指定しないでください</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i はジョブをその場所で変更します。-d と --ppd は指定しないでください</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i では送信済みのジョブのジョブ管理を変更できません</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait には印刷するジョブが必要です</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>一覧表示はジョブのオプションと組み合わせられません</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>プリンターが指定されていません。-d または --ppd で指定してください</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd には --dry-run または --folders が必要です</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>標準入力から読み取れる項目は 1 つだけです</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>空にはできません</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>18:30 (UTC) のような時刻、hold、immediate、resume、restart、または evening のようなプリントサーバーのキーワードを指定してください</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>12 または QUEUE-12 のようなジョブを指定してください</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 は無視されます: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS にフォームはありません</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS にモードはありません。-o を使用してください</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>文字セットは常に UTF-8 です</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>形式はプリントサーバーが判別します。-o document-format=TYPE を使用してください</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember と --forget の両方に %1 は指定できません</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>-i、--dry-run、--list、--folders、--check、--list-presets、--delete-preset のうち 1 つだけを使用してください</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>パスワードが違います。%2 用の %1 のパスワード</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>%2 用の %1 のパスワード</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1。--server-password-file で指定してください</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>文書 %1 を送信中: %2 MiB、%3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>文書 %1 を送信中: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>送信済みのジョブを変更する: -H、-n、-o、-P、-q、-t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>ファイルのパスワードは「%1」に送信されません。これはネットワーク上のプリンターで、プリントサーバーに設定されていません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>「%1」はプリントサーバーに設定されていません。ネットワーク上のプリンターを使用します: %2</translation>
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
        <translation>利用できるプリンターがありません</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>このセクションを開く</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>ダイアログの画像を保存して終了する</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>起動にかかった時間を表示して終了する</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>ファイルまたは標準入力の印刷ダイアログを表示します。</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>終了コード: 0 送信済み、1 未送信、2 使い方の誤り。</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>ドライバーがありません</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>現像剤がありません</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>現像剤残量少</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>高温</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>ウォームアップ中</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>新しいジョブを保留中</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>給紙トレイがありません</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>インクまたはトナーがありません</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>インクまたはトナー残量少</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>廃トナーがほぼ満杯</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>廃トナーが満杯</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>紙詰まり</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>用紙残量少</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>用紙が必要です</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>一時停止しています</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>ドラム寿命</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>ドラム寿命間近</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>確認が必要です</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>排紙トレイがほぼ満杯</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>排紙トレイが満杯</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>排紙トレイがありません</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>電源オフ</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>プリンターのメモリー不足</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>一部停止</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>停止しています</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>トナー切れ</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>トナー残量少</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>レター</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>リーガル</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>エグゼクティブ</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>タブロイド</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>レジャー</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>ステートメント</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>はがき</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>往復はがき</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>封筒 Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>封筒 %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>封筒 %1 号</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>メイントレイ</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>予備トレイ</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>カセット</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>カセット %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>トレイ %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手差し</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>多目的トレイ</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>封筒フィーダー</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>封筒の手差し</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>大容量トレイ</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>上段トレイ</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中段トレイ</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>下段トレイ</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>左トレイ</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>右トレイ</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>側面トレイ</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>背面トレイ</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>中央トレイ</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>写真トレイ</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>ディスクトレイ</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>はがきトレイ</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>ロール紙</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>予備ロール紙</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>ロール紙 %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>レターヘッド</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>印刷済み用紙</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>穴あき用紙</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>再生紙</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>ボンド紙</translation>
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
        <translation>コート紙</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>インクジェット用紙</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>上質紙</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>色紙</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>コットン紙</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>カード用紙</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>OHP フィルム</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル紙</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>写真用紙</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>光沢写真用紙</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>高光沢写真用紙</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>半光沢写真用紙</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>サテン写真用紙</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>マット写真用紙</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>連続紙</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>インデックス紙</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>フィルム</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>上段排紙トレイ</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>中段排紙トレイ</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>下段排紙トレイ</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>左排紙トレイ</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>右排紙トレイ</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>中央排紙トレイ</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>側面排紙トレイ</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>背面排紙トレイ</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>印刷面を上</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>印刷面を下</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>スタッカー %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>スタッカー</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>メールボックス %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>マイメールボックス</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>黒のみ (グレーなし)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>ドラフト</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>ステープル 2 か所</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>ステープル 3 か所</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>平とじ</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>中とじ</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>パンチ 2 穴</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>パンチ 3 穴</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>パンチ 4 穴</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>多穴パンチ</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>製本</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>断裁</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>表紙を付ける</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>ジョブごとにずらす</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>ラミネート</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>2 つ折り</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>3 つ折り (内側)</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z 折り</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>半 Z 折り</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>蛇腹折り</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>観音折り</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>両観音折り</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>平行折り</translation>
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
        <translation>左</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1 (フチなし)</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>前の表紙</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>後の表紙</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>パスワードが必要です</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>プリンター %1 がパスワードを求めています。</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>プリントサーバー %1 がパスワードを求めています。</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>ユーザー名またはパスワードが違います。もう一度入力してください。</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>ドメイン:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>ジョブを送信中</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1、他 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 は空です。印刷するものがありません。</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 はフォルダーです。ファイルを選択してください。</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 は、印刷できる上限の %2 を超えています。</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 を印刷用にコピーできません: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>文書にページがありません。印刷するものがありません。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>文書が壊れているため表示できません。プリンターで印刷できない可能性があります。</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>文書が壊れています。一部が欠けている可能性があります。</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>この文書はパスワードで保護されています。印刷するにはパスワードを入力してください。</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>プレビューできません。表示するには cups をインストールしてください。</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>文書の変換に時間がかかりすぎるため、プレビューできません。</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>この種類の文書はプレビューを表示できません。</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>文書を選択</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>文書を開くのに時間がかかりすぎます。</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>文書のコピーに必要な空き容量がありません。</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>文書が壊れているため開けません。</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>パスワードが違います。あと 1 回入力できます。</translation>
    </message>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>文書を開けません。開くには qpdf をインストールしてください。</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>パスワードが違います。あと %n 回入力できます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>the digest of the pass code</source>
        <translation>暗証番号のダイジェスト</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>暗証番号</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>ジョブの時刻</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>フォルダーの暗証番号</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>ユーザー番号</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>アカウント番号</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>ジョブ名</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>他のユーザーに何が見えるかを確認できません: %1</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>ジョブ管理の拡張機能に印刷ダイアログ用のパネルがありません</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>パネルのレイアウトがありません</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>JobHandling.pde がプログラムと同じ場所にもライブラリーフォルダーにも見つかりません</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: %2 行目: %3</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>PPD を保存できません: %1</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>%1 の PPD を取得できません: %2</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>プリセットにこのフォルダー名を保存できません</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>プリセット「%1」はありません。このプリンターにプリセットはありません</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>プリセット「%1」はありません。このプリンターにあるもの: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>プリセット「%1」は壊れているため、そのまま残します</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>このプリンターのプリセットは壊れているため、変更しませんでした</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>プリセット「%1」は別の機種 %2 用です</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>標準入力を読み取れません</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: フォルダーです</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>ジョブは中止されました</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>プリントサーバーの応答が途中で切れました</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>プリントサーバーの応答を読み取れません</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>プリントサーバーの応答が大きすぎます</translation>
    </message>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>プリントサーバー %1 の検索に時間がかかりすぎました</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>%1 という名前のプリントサーバーはありません</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>プリントサーバー %1 に暗号化して接続できません</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>プリントサーバー %1 に接続できません。動作していますか?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>プリントサーバー %1 が文書の読み取りを途中でやめました</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>プリントサーバー %1 が %2 秒以内に応答しませんでした</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>プリントサーバー %1 が接続を切断しました</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>プリントサーバー %1 が別のアドレスへ転送しました (HTTP ステータス %2)。転送先には接続しません</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>プリントサーバー %1 がパスワードを求めています</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>プリントサーバー %1 の応答: %2 (HTTP ステータス %3)</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>プリントサーバーがジョブに番号を付けませんでした</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>「%1」にジョブを作成できません: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>ジョブ %1-%2 を取り消せません: %3</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>%1 の PPD が大きすぎます</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>プリントサーバーがジョブを拒否しました: %1</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>%1 を印刷できませんでした: %2</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>プリンター「%1」を開けません: %2</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>プリントサーバーがジョブを終了しました: %1</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>プリセット名は最大 %1 文字です。短い名前を選択してください</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>このプリンターのプリセットを読み取れません: %1</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>ジョブのオプション</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>プリントサーバーの応答にジョブが含まれていません</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>フォルダーを記憶できません: %1</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>プリンターの応答を一時フォルダーに書き込めません。ディスクがいっぱいではありませんか?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>プリンターの応答はフォルダーの一覧ではありません</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>このプリンターはこの種類のファイルを受け付けません (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>「%1」はジョブを受け付けていません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>「%1」はジョブを受け付けていません: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>「%1」という名前のプリンターはありません</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>このプリンターはこの種類のファイルを受け付けません</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>モデル %1 のジョブ管理</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>まだ何も印刷されていません</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>印刷サーバーにジョブの記録がもうありません</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>ジョブ %1 をキャンセルできません: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>プリンター「%1」のユーザー名またはパスワードが違います</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>プリントサーバー %1 のユーザー名またはパスワードが違います</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>プリンター「%1」がパスワードを求めています</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>プリンター「%1」を設定できません: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>プリンターが応答しません</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>アドレスが不明です</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>接続が拒否されました</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>接続が切断されました</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>時間内に応答がありませんでした</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>応答を読み取れません</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>プリンターに接続できません</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>%1 からフォルダー一覧を取得できません: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: PPD ファイルではなくフォルダーです</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>既定のプリンターが設定されていません。-d で選択してください</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>別のプリンターのジョブです</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>ジョブ %1 を再開できません: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>ジョブ %1 を変更できません: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>At</source>
        <translation>時刻を指定</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>時刻を入力してください (例: 14:30)。</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>プリンターを待っています</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>ほかの 1 件のジョブを待っています</translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>保留中: プリンターがパスワードを求めています</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>印刷時刻まで保留中</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>解放されるまで保留中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>%1 ページ目を印刷中</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>%2 ページ中 %1 ページ目を印刷中</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>停止: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>停止: プリンターは一時停止しています</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>%1 で暗証番号が入力されるのを待っています</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>%1 で解放されるのを待っています</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>印刷しました</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>印刷しました。再印刷のため %1 に保存されています</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>1 部印刷しました。残りは %1 で待機しています</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>%1 がキャンセルしました</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>プリンターでキャンセルされました</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>印刷サーバーが停止しました</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>印刷されませんでした</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>ジョブが印刷されたかどうか不明です</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>他の %n 件のジョブを待機中</numerusform>
        </translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>プリンターに接続しています</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>その他のオプション</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>PDF ファイルではページはそのまま保存されます。選択できるのはページとその順序だけです。</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>ページの描画に時間がかかりすぎるため、プレビューを表示できません。</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>この種類の文書はプレビューを表示できません。</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>プレビューを表示できません。表示するには poppler-utils をインストールしてください。</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>この PDF 文書を読み取れないため、プレビューを表示できません。</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>指定したページ</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>文書は %1 ページまでです。印刷されるページ: %2。</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>%1をロック</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>フォルダー名を取得するには、プリンターのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>「%1」はアドレスではありません。プリンターの名前または IP アドレスを入力してください。</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>このプリンターは文書を保存しないため、フォルダーを選択しても効果はありません。</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>ロック中: この入力内容はこのプリンター用に記憶されます。</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>ロック解除: この入力内容はこのジョブだけに使われます。</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>カスタムサイズ</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>%1 ～ %2 %3 の幅を入力してください。</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>%1 ～ %2 %3 の高さを入力してください。</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>保護された文書</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 はパスワードで保護されています。文書を印刷するにはパスワードを入力してください。</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>Saving takes too long.</source>
        <translation>保存に時間がかかりすぎます。</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>空き容量が足りません。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>中止しました。</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>ページが選択されていません。</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>PDF ファイルを保存するには qpdf をインストールしてください。</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 を保存できません。%2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>パーセント</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>%1 ～ %2 のパーセント値を入力してください。</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>プリセットとして保存…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>プリセットを削除</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>暗証番号も含める</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>前回の設定</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>プリセットはありません</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (変更あり)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>プリセット: %1</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>プリセット「%1」を置き換えますか?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>%1/%2 枚目</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>%1/%2 枚目、表</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>%1/%2 枚目、裏</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>合計: 用紙 1 枚</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>ページが選択されていません。</translation>
    </message>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>PDF として保存できるのは PDF 文書だけです。</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1、1 ページ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1、%n ページ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>合計: 用紙 %n 枚</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>プリンター:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>文書:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>文書なし</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>%1 で印刷</translation>
    </message>
    <message>
        <source>Connecting to the printer…</source>
        <translation>プリンターに接続しています…</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>このプリンターは %1 に対応していません。ジョブはこれなしで印刷されます。</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>文書が選択されていません</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>文書を読み込んでいます…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>文書が長いため、残りは印刷するときに読み込まれます。</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>プレビューを表示できません。「印刷」を押した後に、アプリケーションがページを作成します。</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>文書を選択</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>ジョブ %1 を %2 に送信しました。</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>ジョブは印刷されませんでした。%1</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>印刷する文書を選択してください。</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>ジョブをキャンセルしています…</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>保留しない</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文書 (*.pdf)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>選択したページをファイルに保存します。</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>%1 として保存しました。</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>このプリンターはプリセットの %1 に対応していません。その他は設定されました。</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>ジョブ %1: %2。</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>入力内容を保存できませんでした。</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>もう一度印刷</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>ジョブをキャンセル</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>%1 から 1 個のフォルダーを取得しました</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%1 から %n 個のフォルダーを取得しました</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>このプリンターはプリントサーバーにありません。削除された可能性があります。</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>機種:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>場所:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>メッセージ:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>残量不明</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>プリンターなし</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>プリンターの名前を入力してください。</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Enter キーで %1 を選択します。</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>複数のプリンターが一致します。1 つ選択してください。</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>「%1」という名前のプリンターはありません。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>プリンターの詳細</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>ジョブを受け付けていません: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>一時停止中: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 件のジョブが待機中</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF として保存</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n 件のジョブが待機中</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>ネットワーク上</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>ジョブを受け付けているプリンターがありません。システム設定でプリンターを確認してから、再試行してください。</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>このジョブを見ることができるのは?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>他のユーザーには、このジョブがあることだけが見え、内容は見えません。</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>他のユーザーに見える内容: %1。隠すには、プリントサーバーのポリシー「%2」に次の行を追加してください:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (変更あり)</translation>
    </message>
</context>
</TS>
