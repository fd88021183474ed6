<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>допустимые значения: %1 или %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>неожиданный аргумент</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>неизвестный параметр %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>для %1 нужно значение</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 не принимает значения</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 нельзя использовать вместе с %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Попробуйте «%1 --help».</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>для %1 нужен %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>не удалось записать в стандартный вывод</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>строка слишком длинная</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>строка не в UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>строка пуста</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>нет терминала, на котором можно спросить</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>прервано</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>допустимо от 0.1 до 3600 секунд</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>число копий должно быть от %1 до %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>приоритет должен быть от %1 до %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>число секунд должно быть от %1 до %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 указан дважды</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>прекратить, если сервер столько молчит (по умолчанию 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>вывести этот текст или версию</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Использование: %1 [ПАРАМЕТР]... [ФАЙЛ]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>как у обычной команды печати</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Задание не удерживается на принтере. Сначала включите «Удержание».</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Для быстрого сохранения нет кода доступа.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Имя нужно только для своей папки. Сначала выберите «Своя папка».</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Код доступа есть только у своей или защищённой папки.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Этот принтер узнаёт вас по номеру пользователя, а не по имени для входа.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Это значение заблокировано и запомнено для этого принтера. Чтобы изменить его, откройте замок.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Скрыть цифры</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Показать цифры</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Выбрать принтер</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Выберите принтер из списка. Если список длинный, введите часть имени принтера и нажмите Enter. Строка под списком сообщает, готов ли принтер.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Напечатать часть страниц</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Выберите «Выбранные страницы» и введите номера или диапазоны страниц, например 1-3, 5. Диапазон может быть открытым: 5- печатает страницу 5 и все следующие.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Печатать на обеих сторонах</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Выберите «Длинный край», если страницы перелистываются как в книге, или «Короткий край», если они переворачиваются как в блокноте.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Посмотреть, что будет напечатано</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Просмотр показывает листы бумаги такими, какими они выйдут из принтера. Листайте страницы стрелками под просмотром или клавишами Page Up и Page Down, увеличивайте их клавишей Ctrl и колесом мыши.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Сохранить страницы в файл PDF</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Удержать задание на принтере с кодом доступа</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>В разделе «Обработка заданий» включите «Удержание» и введите код доступа длиной до 8 цифр. Задание ждёт в принтере, пока кто-нибудь не введёт на нём код доступа. «Удержать после печати» сохраняет задание после печати. «Пробная печать» печатает одну копию и удерживает остальные.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Указать, кто печатает</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Некоторые принтеры спрашивают, кто печатает. В разделе «Пользователь и учётная запись» введите номер пользователя или имя для входа и пароль.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Использовать значение снова</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Закройте замок рядом со значением. Значение запомнится для этого принтера. Чтобы изменить его, откройте замок.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Выбрать папку на принтере</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Сохранить настройки как набор</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Нажмите «Наборы настроек» и выберите «Сохранить как набор». Чтобы снова использовать настройки, выберите там этот набор. Коды доступа сохраняются, только если вы их включите.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Узнать, что видят другие о задании</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Отменить задание</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Пользоваться клавиатурой</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt и подчёркнутая буква переводят к элементу; Alt, Shift и эта буква&#xa0;— к замку рядом с ним. Enter печатает, Escape отменяет, F1 открывает эту справку. Ctrl+R показывает цифры кода доступа, пока в нём стоит курсор.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Справка по печати</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Напечатать несколько страниц на листе</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>В разделе «Компоновка» выберите число страниц на листе, их порядок и рамку. На принтере, который делает брошюры, «Брошюра» располагает страницы так, что сложенные листы читаются как книга.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Подогнать страницы под размер бумаги</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>В разделе «Компоновка» параметр «Масштаб» определяет, что происходит со страницами больше или меньше бумаги. «По размеру бумаги» показывает их целиком, «Заполнить бумагу» не оставляет полей и может обрезать края, «Реальный размер» оставляет их как есть. Процент в параметре «Свой» действует для изображений.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Выбрать время печати</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>В разделе «Задание» параметр «Печать» удерживает задание на сервере печати до указанного времени или, при значении «Отложить», пока вы не освободите его в системном списке заданий печати. Из ожидающих заданий первым печатается задание с наивысшим приоритетом.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Добавить титульные листы и платёжную информацию</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>В разделе «Задание» выберите титульный лист, который печатается до или после документа. Платёжная информация, например номер проекта, хранится вместе с заданием в журналах сервера печати.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Найти другой параметр принтера</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>«Другие параметры» содержат все остальные параметры принтера. Введите часть названия в фильтр, чтобы видеть только параметры, в которых она есть.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Выберите «Сохранить как PDF» в списке принтеров и нажмите «Сохранить». Файл содержит выбранные страницы. Сохранять можно только документы PDF, а выбирать&#xa0;— только их страницы и порядок страниц.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Напечатать документ, защищённый паролем</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>После нажатия «Печать» диалог запрашивает пароль документа. Печатается копия без пароля, которую можете прочитать только вы и которая затем удаляется.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>В разделе «Обработка заданий» включите «Удержание». В разделе «Хранение документов» выберите «Своя папка» и введите имя папки. «Получить имена папок» запрашивает папки у принтера, чтобы можно было выбрать одну из списка.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>В сводке нажмите «Кто видит это задание?». В ответе указано, какие сведения о задании сервер печати показывает другим пользователям и как их скрыть.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Нажмите «Отмена» во время отправки задания. Пока окно следит за заданием, нажмите «Отменить задание»; «Напечатать снова» ещё раз отправляет задание, которое не удалось напечатать. После закрытия окна используйте системный список заданий печати.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Копии</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>По копиям</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Обратный порядок</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Печатать только</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Размер бумаги</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Двусторонняя печать</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Качество</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Источник бумаги</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Тип бумаги</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Выходной лоток</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Сшивание</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Перфорация</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Сгибание</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ориентация</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Страниц на листе</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Брошюра</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Порядок страниц</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Рамка</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Приоритет</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Платёжная информация</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Титульные листы</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Длинный край</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Короткий край</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Все страницы</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Нечётные страницы</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Чётные страницы</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Книжная</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Альбомная</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Перевёрнутая альбомная</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Перевёрнутая книжная</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Слева направо, сверху вниз</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Слева направо, снизу вверх</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Справа налево, сверху вниз</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Справа налево, снизу вверх</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Сверху вниз, слева направо</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Сверху вниз, справа налево</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Снизу вверх, слева направо</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Снизу вверх, справа налево</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Одинарная линия</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Толстая одинарная линия</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Двойная линия</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Толстая двойная линия</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>По размеру бумаги</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Реальный размер</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Заполнить бумагу</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Отложить</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Низкий</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Средний</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Высокий</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Срочный</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Не засекречено</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Засекречено</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Конфиденциально</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Секретно</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Совершенно секретно</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Свой %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Своё %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>В %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Двусторонняя печать невозможна: %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 «%2» несовместимо с %3 «%4».</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Отключить двустороннюю печать</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1: установить %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Страницы %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 копия</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n копия</numerusform>
            <numerusform>%n копии</numerusform>
            <numerusform>%n копий</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Введите номера или диапазоны страниц, например 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Документ заканчивается на странице %1. Введите номера страниц не больше %1.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Текущая страница</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Выделение</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Отделка</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: этот принтер такого не предлагает</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>этот принтер не спрашивает, кто печатает</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>в %1 допустимо %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>не более %n цифры</numerusform>
            <numerusform>не более %n цифр</numerusform>
            <numerusform>не более %n цифр</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>не более %n символа</numerusform>
            <numerusform>не более %n символов</numerusform>
            <numerusform>не более %n символов</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 нельзя использовать вместе с --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>для %1 нужен --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>для %1 нужен --folder NAME папки с кодом доступа или своей папки</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 нельзя использовать вместе с номером пользователя</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Код доступа</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>код доступа удерживаемого задания</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main или имя папки</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Код папки</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>код папки</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>имя для входа</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>пароль к имени для входа</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>номер пользователя вместо входа</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>номер учётной записи</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>имя пользователя на принтере</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>имя задания на принтере</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>не указан номер пользователя; задайте его с помощью %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>не указано имя для входа; задайте его с помощью %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p равно -q, а -w равно -m; остальные не действуют</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>заменяют очередь, когда задание не отправляется</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>вывести настройки задания и ничего не отправлять; сохранить только то, чего требуют --remember, --forget или --save-preset</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>вывести сводку панели, а не настройки</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>перечислить очереди или только те, где есть обработка заданий, и принтеры в сети</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>получить, запомнить и перечислить папки принтера</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>показать, что другие пользователи сервера видят из параметров задания и как это скрыть</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>сообщать, что происходит с заданием, пока оно не будет напечатано или удержано на принтере; иначе код завершения 1, или 4, если через SECONDS оно ещё ожидает</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>выводить JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>пароль, который запрашивает сервер или принтер</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>удержать задание: не печатая, после печати или после пробной печати</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>не удерживать задание</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>взять X (pin, folder-pin, password) из первой строки файла или стандартного ввода, «-», или спросить на терминале: командную строку могут видеть другие пользователи</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>запомнить значения X для следующих заданий этой очереди</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>больше их не помнить</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>начать с набора настроек этой очереди</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>сохранить настройки как набор; коды доступа&#xa0;— только вместе с --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>сделать только это, для -d или --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Печатает файлы или стандартный ввод с обработкой заданий принтера.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Код завершения: 0 готово, 1 сбой, 2 неверный вызов, 3 отклонено панелью, 4 ожидает.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>ожидание закончено: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>в сети</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>готов</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>остановлен</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>печатает</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>не принимает задания</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 задание</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n задание</numerusform>
            <numerusform>%n задания</numerusform>
            <numerusform>%n заданий</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>у этого принтера нет списка папок</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>адрес принтера неизвестен; задайте его с помощью --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>«%1»&#xa0;— не адрес</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: другие пользователи не видят параметров задания.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: другие пользователи видят в задании: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Администратор скрывает это в cupsd.conf, в политике принтера:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Администратор скрывает это в cupsd.conf, в &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>защищена</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder не действует: этот принтер не хранит документы</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>не удалось запомнить значения: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>задание отправлено, но: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>необработанное задание (raw) идёт в обход драйвера, а с ним и обработки заданий</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>принтер «%1» не предлагает обработку заданий</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m пропущен: он относится к новому заданию</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>предупреждение: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i изменяет уже отправленное задание; уберите файлы</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i изменяет задание там, где оно есть; уберите -d и --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i не может изменить обработку уже отправленного задания</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>для --wait нужно задание для печати</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>список нельзя сочетать с параметрами задания</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>принтер не указан; задайте его с помощью -d или --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>для --ppd нужен --dry-run или --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>из стандартного ввода можно прочитать только одно значение</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>не может быть пустым</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>допустимо время вида 18:30 (UTC), hold, immediate, resume, restart или ключевое слово сервера печати, например evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>допустимо задание вида 12 или QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 пропущен: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>в CUPS нет форм</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>в CUPS нет режимов; используйте -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>кодировка всегда UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>сервер печати сам определяет тип; используйте -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>%1 нельзя указать и в --remember, и в --forget</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>используйте только один из параметров -i, --dry-run, --list, --folders, --check, --list-presets и --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Неверный пароль. Пароль пользователя %1 для %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Пароль пользователя %1 для %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; задайте его с помощью --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>отправка документа %1: %2 МиБ, %3&#xa0;%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>отправка документа %1: %2 МиБ</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>изменить отправленное задание: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>пароль из файла не отправляется на «%1»: это принтер в сети, который не настроен на сервере печати</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>«%1» не настроен на сервере печати; используется принтер в сети: %2</translation>
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
        <translation>нет доступных принтеров</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>не удаётся записать %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>открыть этот раздел</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>сохранить изображение окна и завершить работу</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>вывести время запуска и завершить работу</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Показывает окно печати для файлов или стандартного ввода.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Код завершения: 0 отправлено, 1 не отправлено, 2 неверный вызов.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Открыта крышка</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Нет драйвера</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Закончился проявитель</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Мало проявителя</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Открыта дверца</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Перегрев</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Прогревается</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Удерживает новые задания</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Нет лотка для бумаги</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Закончились чернила или тонер</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Мало чернил или тонера</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Сборник тонера почти заполнен</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Сборник тонера заполнен</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Закончилась бумага</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Замятие бумаги</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Мало бумаги</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Нужна бумага</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Приостанавливается</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Не в сети</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Барабан изношен</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Барабан почти изношен</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Требует внимания</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Выходной лоток почти заполнен</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Выходной лоток заполнен</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Нет выходного лотка</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлен</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Выключен</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Память принтера заполнена</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Частично остановлен</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Останавливается</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Не отвечает</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Закончился тонер</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Мало тонера</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executive</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloid</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Половина US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Открытка (Япония)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Двойная открытка (Япония)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Конверт Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Конверт %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Конверт №&#xa0;%1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Основной лоток</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Дополнительный лоток</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Кассета</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Кассета %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Лоток %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Ручная подача</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Многоцелевой лоток</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Податчик конвертов</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Ручная подача конвертов</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Лоток большой ёмкости</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Верхний лоток</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Средний лоток</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Нижний лоток</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Левый лоток</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Правый лоток</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Боковой лоток</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Задний лоток</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Центральный лоток</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Лоток для фотобумаги</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Лоток для дисков</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Лоток для открыток</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Рулон бумаги</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Дополнительный рулон бумаги</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Рулон %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Обычная бумага</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Фирменный бланк</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Бумага с печатью</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Перфорированная бумага</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Переработанная бумага</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Документная бумага</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Плотная бумага</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Тонкая бумага</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Мелованная бумага</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Бумага для струйной печати</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Высококачественная бумага</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Цветная бумага</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Хлопковая бумага</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Картон</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Прозрачная плёнка</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Конверт</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Наклейки</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Фотобумага</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Фотобумага, глянцевая</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Фотобумага, высокоглянцевая</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Фотобумага, полуглянцевая</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Фотобумага, сатиновая</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Фотобумага, матовая</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Рулонная бумага</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Бумага с разделителями</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Плёнка</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Верхний выходной лоток</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Средний выходной лоток</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Нижний выходной лоток</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Левый выходной лоток</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Правый выходной лоток</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Центральный выходной лоток</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Боковой выходной лоток</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Задний выходной лоток</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Печатью вверх</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Печатью вниз</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Укладчик %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Укладчик</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Почтовый ящик %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Мой почтовый ящик</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цветной</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Чёрно-белый</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Только чёрный, без серого</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Черновое</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычное</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Высокое</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Сшить</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Две скобки</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Три скобки</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Сшивание по краю</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Сшивание по сгибу</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Брошюра</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Перфорация</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Два отверстия</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Три отверстия</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Четыре отверстия</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Много отверстий</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Переплести</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Обрезать</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Добавить обложку</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Сдвигать задания</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Ламинировать</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Согнуть</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Согнуть пополам</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Складывание письмом</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z-складывание</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Половинное Z-складывание</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Складывание гармошкой</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Складывание створками</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Двойное складывание створками</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Параллельное складывание</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>слева вверху</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>слева внизу</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>справа вверху</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>справа внизу</translation>
    </message>
    <message>
        <source>left</source>
        <translation>слева</translation>
    </message>
    <message>
        <source>top</source>
        <translation>вверху</translation>
    </message>
    <message>
        <source>right</source>
        <translation>справа</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>внизу</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, без полей</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Титульный лист до</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Титульный лист после</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Требуется пароль</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>Принтер %1 запрашивает ваш пароль.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Сервер печати %1 запрашивает ваш пароль.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Неверное имя пользователя или пароль. Повторите попытку.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Домен:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Отправка задания</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Не удалось прочитать %1: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1&#xa0;— это папка. Выберите файл.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 больше, чем %2. Это предел для печати.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>Не удалось скопировать %1 для печати: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1: файл пуст. Печатать нечего.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Документ</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 и ещё %n</numerusform>
            <numerusform>%1 и ещё %n</numerusform>
            <numerusform>%1 и ещё %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>В документе нет страниц. Печатать нечего.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Просмотр недоступен. Чтобы увидеть его, установите cups.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Просмотр недоступен: преобразование документа занимает слишком много времени.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Для документов этого типа просмотр недоступен.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Документ защищён паролем. Чтобы напечатать его, введите пароль.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Документ повреждён и не может быть показан. Возможно, принтер не сможет его напечатать.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Документ повреждён. Возможно, его часть отсутствует.</translation>
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
        <translation>Выбрать…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Выбрать документ</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Не удалось открыть документ. Чтобы открыть его, установите qpdf.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Открытие документа занимает слишком много времени.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Недостаточно места для копии документа.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Документ повреждён и не может быть открыт.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Неверный пароль. Осталась одна попытка.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Неверный пароль. Осталась %n попытка.</numerusform>
            <numerusform>Неверный пароль. Осталось %n попытки.</numerusform>
            <numerusform>Неверный пароль. Осталось %n попыток.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>поиск сервера печати %1 занял слишком много времени</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>нет сервера печати с именем %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>не удалось подключиться к серверу печати %1 с шифрованием</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>не удалось подключиться к серверу печати %1. Он запущен?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>сервер печати %1 перестал читать документ</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>ответ сервера печати неполон</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>ответ сервера печати слишком велик</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>сервер печати %1 не ответил за %2 с</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>сервер печати %1 закрыл соединение</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>сервер печати %1 перенаправил на другой адрес (состояние HTTP %2); перенаправления не выполняются</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>сервер печати %1 запрашивает пароль</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>сервер печати %1 ответил: %2 (состояние HTTP %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>не удалось прочитать ответ сервера печати</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>параметры задания</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>имя пользователя</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>имя задания</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>хеш кода доступа</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>код доступа</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>время задания</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>код доступа папки</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>папка</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>номер пользователя</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>номер учётной записи</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>сервер печати не присвоил заданию номер</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>не удалось создать задание на «%1»: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>не удалось отменить задание %1-%2: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>ответ сервера печати не содержит задания</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>не удалось выяснить, что видят другие пользователи: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: строка %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>не удалось получить PPD для %1: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>не удалось сохранить PPD: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>PPD для %1 слишком велик</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>не удалось прочитать стандартный ввод</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: это папка</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>задание остановлено</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>сервер печати остановил задание: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>этот принтер не принимает файлы этого типа</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>этот принтер не принимает файлы этого типа (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>не удалось напечатать %1: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>сервер печати отклонил задание: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>«%1» не принимает задания</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>«%1» не принимает задания: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>нет принтера с именем «%1»</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>не удалось открыть принтер «%1»: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>у расширения «Обработка заданий» нет панели для диалога печати</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>у панели нет макета</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>не удалось записать ответ принтера во временную папку. Диск заполнен?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>ответ принтера не является списком папок</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>не удалось найти JobHandling.pde рядом с программой или в папке библиотек</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>не удалось запомнить папки: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Обработка заданий для модели %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>ещё ничего не печаталось</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>набор настроек не может хранить имя этой папки</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>набора настроек «%1» нет; у этого принтера нет наборов настроек</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>набора настроек «%1» нет; у этого принтера есть: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>набор настроек «%1» повреждён и оставлен без изменений</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>наборы настроек этого принтера повреждены и оставлены без изменений</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>имя набора настроек должно содержать не более %1 символов; выберите имя короче</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>не удалось прочитать наборы настроек этого принтера: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>набор настроек «%1» предназначен для другой модели принтера, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>сервер печати больше не знает этого задания</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>не удалось отменить задание %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>неверное имя пользователя или пароль для принтера «%1»</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>неверное имя пользователя или пароль для сервера печати %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>принтер «%1» запрашивает пароль</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>не удаётся настроить принтер «%1»: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>принтер не отвечает</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>адрес неизвестен</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>в соединении отказано</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>соединение закрыто</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>ответ не получен вовремя</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>не удаётся прочитать ответ</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>принтер недоступен</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>нет списка папок от %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: это папка, а не файл PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>принтер по умолчанию не задан; выберите принтер с помощью -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>оно принадлежит другому принтеру</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>не удалось перезапустить задание %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>не удалось изменить задание %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>At</source>
        <translation>В</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Введите время суток, например 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Ожидание принтера</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Ожидание 1 другого задания</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Ожидание %n другого задания</numerusform>
            <numerusform>Ожидание %n других заданий</numerusform>
            <numerusform>Ожидание %n других заданий</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Удерживается: принтер запрашивает пароль</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Удерживается до времени печати</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Удерживается до освобождения</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Печатает</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Печать страницы %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Печать страницы %1 из %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Остановлено: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Остановлено: принтер приостановлен</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Ждёт на %1, пока вы не введёте там код доступа</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Ждёт на %1, пока вы не освободите его там</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Напечатано</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Напечатано и сохранено на %1 для повторной печати</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Одна копия напечатана, остальные ждут на %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Отменено пользователем %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Отменено на принтере</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Остановлено сервером печати</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Не напечатано</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Неизвестно, напечатано ли задание</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Подключение к принтеру</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Компоновка</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Задание</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Другие параметры</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>В файле PDF страницы остаются без изменений. Можно выбрать только страницы и их порядок.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Просмотр недоступен: отрисовка страницы занимает слишком много времени.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Для документов этого типа просмотр недоступен.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Просмотр недоступен. Чтобы увидеть его, установите poppler-utils.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Просмотр недоступен: этот документ PDF не удаётся прочитать.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Предыдущая страница</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Следующая страница</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Страница</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Все страницы</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Выбранные страницы</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Документ заканчивается на странице %1. Будут напечатаны страницы: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Заблокировать: %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Чтобы получить имена папок принтера, введите его адрес.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>«%1»&#xa0;— не адрес. Введите имя или IP-адрес принтера.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Этот принтер не хранит документы, поэтому выбор папки ни на что не влияет.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Заблокировано: это значение запомнено для этого принтера.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Разблокировано: это значение только для этого задания.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>мм</translation>
    </message>
    <message>
        <source>in</source>
        <translation>дюймы</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Свой размер</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Введите ширину от %1 до %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Введите высоту от %1 до %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Защищённый документ</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 защищён паролем. Чтобы напечатать документ, введите пароль.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Документ</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Страницы не выбраны.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Чтобы сохранять файлы PDF, установите qpdf.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Сохранение занимает слишком много времени.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Недостаточно места.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Остановлено.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>Не удалось сохранить %1. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Процент</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Свой</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Введите процент от %1 до %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Наборы настроек</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Последний использованный</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Наборов нет</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Сохранить как набор…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Удалить набор</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (изменён)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Наборы настроек: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Сохранить как набор</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Включить коды доступа</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Заменить набор «%1»?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Как PDF можно сохранить только документы PDF.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Страницы не выбраны.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Страница %1 из %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Лист %1 из %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Лист %1 из %2, лицевая сторона</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Лист %1 из %2, оборот</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 страница</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n страница</numerusform>
            <numerusform>%1, %n страницы</numerusform>
            <numerusform>%1, %n страниц</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Всего: 1 лист бумаги</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Всего: %n лист бумаги</numerusform>
            <numerusform>Всего: %n листа бумаги</numerusform>
            <numerusform>Всего: %n листов бумаги</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Подключение к принтеру…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Сохраняет выбранные страницы в файл.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Этот принтер не поддерживает %1. Задание будет напечатано без этого.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Сохранить как PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Печать на %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Документ не выбран</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Чтение документа…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Документ длинный. Остальная часть будет прочитана при печати.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Просмотр недоступен. Приложение подготовит страницы после нажатия «Печать».</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Нет документа</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Выбрать документ</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Документы PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Задание %1 отправлено на %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Сохранено как %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Задание не напечатано. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Сохранить…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Выберите документ для печати.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Отмена задания…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Принтер:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Документ:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Этот принтер не поддерживает из набора: %1. Остальное установлено.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Не удерживается</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Задание %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Его значения не удалось запомнить.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Напечатать снова</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Отменить задание</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 папка от %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n папка от %1</numerusform>
            <numerusform>%n папки от %1</numerusform>
            <numerusform>%n папок от %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>На сервере печати больше нет этого принтера. Возможно, он удалён.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Принтер</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Описание:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Модель:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Расположение:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Сообщение:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Уровень неизвестен</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Принтер</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Нет принтера</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Поиск принтеров…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Введите имя принтера.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Нажмите Enter, чтобы выбрать %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Подходит несколько принтеров. Выберите один из них.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Нет принтера с именем «%1».</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Сведения о принтере</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Сохранить как PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Не принимает задания: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Не принимает задания</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Приостановлен: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлен</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Печатает</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готов</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 задание ожидает</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n задание ожидает</numerusform>
            <numerusform>%n задания ожидают</numerusform>
            <numerusform>%n заданий ожидают</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>В сети</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Ни один принтер не принимает задания. Проверьте принтеры в параметрах системы и повторите попытку.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Кто видит это задание?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Другие пользователи видят, что это задание есть, но не видят никаких подробностей.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Другие пользователи видят: %1. Чтобы скрыть это, добавьте следующие строки в политику «%2» сервера печати:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (изменён)</translation>
    </message>
</context>
</TS>
