<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>musí být %1 nebo %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>neočekávaný argument</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>neznámá volba %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 vyžaduje hodnotu</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nepřijímá hodnotu</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 nelze použít spolu s %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Zkuste „%1 --help“.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 vyžaduje %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>na standardní výstup nelze zapsat</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>řádek je příliš dlouhý</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>řádek není v UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>řádek je prázdný</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>není terminál, na kterém by se dalo zeptat</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>přerušeno</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>musí být mezi 0.1 a 3600 sekundami</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>počet kopií musí být mezi %1 a %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>priorita musí být mezi %1 a %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>počet sekund musí být mezi %1 a %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 je uvedeno dvakrát</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>vzdá to, když server tak dlouho mlčí (výchozí: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>vypíše tento text, nebo verzi</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Použití: %1 [VOLBA]... [SOUBOR]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>jako u běžného tiskového příkazu</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Úloha se v tiskárně nepodrží. Nejprve zapněte „Podržení“.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Rychlé uložení nemá přístupový kód.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Název potřebuje jen vlastní složka. Nejprve zvolte „Vlastní složka“.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Přístupový kód má jen vlastní nebo chráněná složka.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Tato tiskárna vás pozná podle čísla uživatele, ne podle přihlašovacího jména.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Tento údaj je uzamčen a zapamatován pro tuto tiskárnu. Chcete-li jej změnit, otevřete zámek.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Skrýt číslice</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Zobrazit číslice</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Výběr tiskárny</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Vyberte tiskárnu ze seznamu. Je-li seznam dlouhý, napište část názvu tiskárny a stiskněte Enter. Řádek pod seznamem uvádí, zda je tiskárna připravena.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Tisk některých stránek</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Zvolte „Vybrané stránky“ a zadejte čísla nebo rozsahy stránek, například 1-3, 5. Rozsah může být otevřený: 5- vytiskne stránku 5 a všechny následující.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Tisk na obě strany</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Pro stránky, které se obracejí jako v knize, zvolte „Delší okraj“, pro stránky, které se obracejí jako v bloku, „Kratší okraj“.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Náhled toho, co se vytiskne</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Náhled ukazuje listy papíru tak, jak vyjdou z tiskárny. Stránkami listujte šipkami pod náhledem nebo klávesami Page Up a Page Down, zvětšíte je klávesou Ctrl a kolečkem myši.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Uložení stránek jako souboru PDF</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Podržení úlohy v tiskárně s přístupovým kódem</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>V části „Správa úloh“ zapněte „Podržení“ a zadejte přístupový kód o nejvýše 8 číslicích. Úloha čeká v tiskárně, dokud tam někdo přístupový kód nezadá. „Podržet po tisku“ ponechá úlohu i po vytištění. „Zkušební tisk“ vytiskne jednu kopii a ostatní podrží.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Uvést, kdo jste</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Některé tiskárny se ptají, kdo tiskne. V části „Uživatel a účet“ zadejte číslo uživatele, nebo přihlašovací jméno a heslo.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Opakované použití údaje</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Zavřete zámek vedle údaje. Údaj se zapamatuje pro tuto tiskárnu. Chcete-li jej změnit, otevřete zámek.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Výběr složky v tiskárně</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Uložení nastavení jako předvolby</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Stiskněte „Předvolby“ a zvolte „Uložit jako předvolbu“. Chcete-li nastavení znovu použít, vyberte tam předvolbu. Přístupové kódy se uloží, jen když je zahrnete.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Co ostatní vidí z úlohy</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Zrušení úlohy</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Používání klávesnice</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt a podtržené písmeno vedou k ovládacímu prvku; Alt, Shift a písmeno vedou k zámku vedle něj. Enter tiskne, Escape ruší a F1 otevře tuto nápovědu. Ctrl+R zobrazí číslice přístupového kódu, dokud je v něm kurzor.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Nápověda k tisku</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Tisk více stránek na list</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>V části „Rozvržení“ zvolte počet stránek na list, jejich pořadí a ohraničení. Na tiskárně, která vyrábí brožury, „Brožura“ uspořádá stránky tak, že se složené listy dají číst jako kniha.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Přizpůsobení stránek papíru</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>V části „Rozvržení“ určuje „Měřítko“, co se stane se stránkami většími nebo menšími než papír. „Přizpůsobit papíru“ je zobrazí celé, „Vyplnit papír“ nenechá žádný okraj a může kraje oříznout, „Skutečná velikost“ je ponechá beze změny. Procenta u volby „Vlastní“ platí pro obrázky.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Volba času tisku</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>V části „Úloha“ podrží „Tisknout“ úlohu na tiskovém serveru do určeného času, nebo s volbou „Pozastaveno“ do doby, než ji uvolníte v systémovém seznamu tiskových úloh. Z čekajících úloh se jako první vytiskne ta s nejvyšší prioritou.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Přidání titulních listů a účtovacích informací</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>V části „Úloha“ zvolte titulní list, který se vytiskne před dokumentem nebo za ním. Účtovací informace, například číslo projektu, se uchovávají s úlohou v záznamech tiskového serveru.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Vyhledání další volby tiskárny</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>„Další volby“ obsahují všechny ostatní volby tiskárny. Do filtru napište část názvu a uvidíte jen volby, které ji obsahují.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>V seznamu tiskáren zvolte „Uložit jako PDF“ a stiskněte „Uložit“. Soubor obsahuje stránky, které jste vybrali. Uložit lze jen dokumenty PDF a zvolit jen jejich stránky a pořadí stránek.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Tisk dokumentu chráněného heslem</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Po stisknutí „Tisknout“ se dialog zeptá na heslo dokumentu. Vytiskne kopii bez hesla, kterou můžete číst jen vy a která se potom smaže.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>V části „Správa úloh“ zapněte „Podržení“. V části „Ukládání dokumentů“ zvolte „Vlastní složka“ a zadejte název složky. „Získat názvy složek“ se zeptá tiskárny na její složky, abyste si mohli jednu vybrat ze seznamu.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>V souhrnu stiskněte „Kdo vidí tuto úlohu?“. Odpověď uvádí, které podrobnosti o úloze zobrazuje tiskový server ostatním uživatelům a jak je skrýt.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Během odesílání úlohy stiskněte „Zrušit“. Dokud dialog úlohu sleduje, stiskněte „Zrušit úlohu“; „Tisknout znovu“ odešle neúspěšnou úlohu ještě jednou. Po zavření dialogu použijte systémový seznam tiskových úloh.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Kopie</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Kompletovat</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Obrátit</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Stránky</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Tisknout jen</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Velikost papíru</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Oboustranně</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Barva</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kvalita</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Zdroj papíru</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Typ papíru</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Výstupní zásobník</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Sešívání</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Děrování</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Skládání</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientace</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Stránek na list</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Brožura</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Pořadí stránek</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Ohraničení</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Měřítko</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Tisknout</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorita</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Účtovací informace</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Titulní listy</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozlišení</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Delší okraj</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kratší okraj</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Všechny stránky</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Liché stránky</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Sudé stránky</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automaticky</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Na výšku</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Na šířku</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Obráceně na šířku</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Obráceně na výšku</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Zleva doprava, shora dolů</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Zleva doprava, zdola nahoru</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Zprava doleva, shora dolů</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Zprava doleva, zdola nahoru</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Shora dolů, zleva doprava</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Shora dolů, zprava doleva</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Zdola nahoru, zleva doprava</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Zdola nahoru, zprava doleva</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Jednoduchá čára</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Silná jednoduchá čára</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Dvojitá čára</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Silná dvojitá čára</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Přizpůsobit papíru</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Skutečná velikost</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Vyplnit papír</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Nízká</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Střední</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Vysoká</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Naléhavá</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standardní</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Neutajované</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Utajované</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Důvěrné</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Tajné</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Přísně tajné</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Vlastní %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Vlastní %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>V %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Na médium %1 nelze tisknout oboustranně.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 „%2“ nelze použít s %3 „%4“.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Vypnout oboustranný tisk</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Nastavit %1 na %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Stránky %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 kopie</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n kopie</numerusform>
            <numerusform>%n kopie</numerusform>
            <numerusform>%n kopií</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Zadejte čísla nebo rozsahy stránek, například 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Dokument končí na stránce %1. Zadejte čísla stránek nejvýše %1.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Aktuální stránka</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Výběr</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Dokončování</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: tato tiskárna to nenabízí</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>tato tiskárna se neptá, kdo tiskne</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 smí mít %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>nejvýše %n číslici</numerusform>
            <numerusform>nejvýše %n číslice</numerusform>
            <numerusform>nejvýše %n číslic</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>nejvýše %n znak</numerusform>
            <numerusform>nejvýše %n znaky</numerusform>
            <numerusform>nejvýše %n znaků</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 nelze použít spolu s --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 vyžaduje --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 vyžaduje --folder NAME složky s přístupovým kódem nebo vlastní složky</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 nelze použít spolu s číslem uživatele</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Přístupový kód</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>přístupový kód podržené úlohy</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main nebo název složky</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Kód složky</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>kód složky</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>přihlašovací jméno</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>heslo k přihlašovacímu jménu</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>číslo uživatele místo přihlášení</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>číslo účtu</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>uživatelské jméno na tiskárně</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>název úlohy na tiskárně</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>chybí číslo uživatele; zadejte je pomocí %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>chybí přihlašovací jméno; zadejte je pomocí %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p je -q a -w je -m; ostatní nemají účinek</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>zastupují frontu, když se nic neodesílá</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>vypíše nastavení úlohy a nic neodešle; uchová jen to, co žádají --remember, --forget nebo --save-preset</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>vypíše souhrn panelu místo nastavení</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>vypíše fronty, nebo jen ty se správou úloh, a tiskárny v síti</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>načte, zapamatuje a vypíše složky tiskárny</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>ukáže, co ostatní uživatelé serveru vidí z voleb úlohy, a jak to skrýt</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>vypisuje, co se děje s úlohou, dokud není vytištěna nebo podržena na tiskárně; jinak končí s 1, nebo se 4, pokud po SECONDS stále čeká</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>vypíše JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>heslo, které požaduje server nebo tiskárna</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>podrží úlohu: nevytištěnou, po vytištění nebo po zkušebním tisku</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>úlohu nepodrží</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>vezme X (pin, folder-pin, password) z prvního řádku souboru nebo standardního vstupu („-“), nebo se zeptá na terminálu: příkazový řádek mohou vidět ostatní uživatelé</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>zapamatuje údaje X pro další úlohy této fronty</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>už si je nepamatuje</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>začne předvolbou této fronty</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>uloží nastavení jako předvolbu; přístupové kódy jen spolu s --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>udělá jen toto, pro -d nebo --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Vytiskne soubory nebo standardní vstup se správou úloh tiskárny.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Končí s 0 hotovo, 1 nezdařilo se, 2 špatné použití, 3 odmítnuto panelem, 4 čeká.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>déle se nečeká: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>v síti</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>připravena</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zastavena</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>tiskne</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>nepřijímá úlohy</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 úloha</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n úloha</numerusform>
            <numerusform>%n úlohy</numerusform>
            <numerusform>%n úloh</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>tato tiskárna nemá seznam složek</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>adresa tiskárny není známa; zadejte ji pomocí --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>„%1“ není adresa</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: ostatní uživatelé nevidí žádné volby úlohy.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: ostatní uživatelé vidí z úlohy: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Správce to skryje v cupsd.conf, v zásadách tiskárny:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Správce to skryje v cupsd.conf, v &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>uzamčeno</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder nemá účinek: tato tiskárna dokumenty neukládá</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>údaje nelze zapamatovat: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>úloha byla odeslána, ale: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>nezpracovaná úloha (raw) obchází ovladač a s ním i správu úloh</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>tiskárna „%1“ nenabízí správu úloh</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m se ignoruje: patří k nové úloze</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>varování: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i mění již odeslanou úlohu; vynechte soubory</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i mění úlohu tam, kde je; vynechte -d a --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i nemůže změnit správu již odeslané úlohy</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait vyžaduje úlohu k vytištění</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>seznam nelze kombinovat s volbami úlohy</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>není zadána tiskárna; zvolte ji pomocí -d nebo --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd vyžaduje --dry-run nebo --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>ze standardního vstupu lze načíst jen jeden údaj</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>nesmí být prázdné</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>musí být čas jako 18:30 (UTC), hold, immediate, resume, restart nebo klíčové slovo tiskového serveru jako evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>musí být úloha jako 12 nebo QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 se ignoruje: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS nemá formuláře</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS nemá režimy; použijte -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>znaková sada je vždy UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>tiskový server rozpozná typ; použijte -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember a --forget nesmějí obě uvádět %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>použijte jen jednu z voleb -i, --dry-run, --list, --folders, --check, --list-presets a --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Chybné heslo. Heslo uživatele %1 pro %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Heslo uživatele %1 pro %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; zadejte je pomocí --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>odesílá se dokument %1: %2 MiB, %3&#xa0;%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>odesílá se dokument %1: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>změní odeslanou úlohu: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>heslo ze souboru se neposílá tiskárně „%1“, která je v síti a není nastavena na tiskovém serveru</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>„%1“ není nastavena na tiskovém serveru; použije se tiskárna v síti: %2</translation>
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
        <translation>není dostupná žádná tiskárna</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 nelze zapsat</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>otevře tuto část</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>uloží obrázek dialogu a skončí</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>vypíše, jak dlouho trvalo spuštění, a skončí</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Zobrazí dialog tisku pro soubory nebo standardní vstup.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Končí s 0 odesláno, 1 neodesláno, 2 špatné použití.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Připojuje se</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Otevřený kryt</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Chybí ovladač</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Došla vývojka</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Dochází vývojka</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Otevřená dvířka</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Příliš horká</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Zahřívá se</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Nové úlohy se podržují</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Chybí zásobník papíru</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Došel inkoust nebo toner</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Dochází inkoust nebo toner</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Nádobka na odpadní toner téměř plná</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Nádobka na odpadní toner plná</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Došel papír</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Uvíznutý papír</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Dochází papír</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Je potřeba papír</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Pozastavuje se</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Válec opotřebovaný</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Válec téměř opotřebovaný</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Vyžaduje pozornost</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Výstupní zásobník téměř plný</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Výstupní zásobník plný</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Chybí výstupní zásobník</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastavena</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Vypnutá</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Paměť tiskárny plná</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Částečně zastavena</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Zastavuje se</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Neodpovídá</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Došel toner</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Dochází toner</translation>
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
        <translation>Poloviční US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Pohlednice (Japonsko)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Dvojitá pohlednice (Japonsko)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Obálka Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Obálka %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Obálka č. %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automaticky</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Hlavní zásobník</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Náhradní zásobník</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kazeta</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Kazeta %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Zásobník %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Ruční podávání</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Víceúčelový zásobník</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Podavač obálek</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Ruční podávání obálek</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Velkokapacitní zásobník</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Horní zásobník</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Prostřední zásobník</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Dolní zásobník</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Levý zásobník</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Pravý zásobník</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Boční zásobník</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Zadní zásobník</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Středový zásobník</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Zásobník na fotografie</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Zásobník na disky</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Zásobník na pohlednice</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Role papíru</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Náhradní role papíru</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Role %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Běžný papír</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Hlavičkový papír</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Předtištěný papír</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Děrovaný papír</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Recyklovaný papír</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bankovní papír</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Silný papír</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Tenký papír</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Natíraný papír</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papír pro inkoustový tisk</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Kvalitní papír</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Barevný papír</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Bavlněný papír</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Průhledná fólie</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Obálka</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Štítky</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapír</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Fotopapír, lesklý</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Fotopapír, vysoce lesklý</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Fotopapír, pololesklý</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Fotopapír, saténový</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Fotopapír, matný</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Nekonečný papír</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Rejstříkový papír</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Fólie</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disk</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Horní výstupní zásobník</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Prostřední výstupní zásobník</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Dolní výstupní zásobník</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Levý výstupní zásobník</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Pravý výstupní zásobník</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Středový výstupní zásobník</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Boční výstupní zásobník</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Zadní výstupní zásobník</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Potištěnou stranou nahoru</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Potištěnou stranou dolů</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Stohovač %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Stohovač</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Schránka %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Moje schránka</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Barevně</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Černobíle</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Jen černá, bez odstínů šedé</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Koncept</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normální</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Vysoká</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Sešít</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Dvě sponky</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Tři sponky</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Šití po okraji</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Šití ve hřbetu</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Brožura</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Děrovat</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Dva otvory</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Tři otvory</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Čtyři otvory</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Mnoho otvorů</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Svázat</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Oříznout</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Přidat obálku</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Odsadit úlohy</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminovat</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Složit</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Složit napůl</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Dopisní sklad</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Sklad do Z</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Poloviční sklad do Z</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Harmonikový sklad</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Okénkový sklad</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Dvojitý okénkový sklad</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Rovnoběžný sklad</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>vlevo nahoře</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>vlevo dole</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>vpravo nahoře</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>vpravo dole</translation>
    </message>
    <message>
        <source>left</source>
        <translation>vlevo</translation>
    </message>
    <message>
        <source>top</source>
        <translation>nahoře</translation>
    </message>
    <message>
        <source>right</source>
        <translation>vpravo</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>dole</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, bez okrajů</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Titulní list na začátku</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Titulní list na konci</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Vyžadováno heslo</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>Tiskárna %1 požaduje vaše heslo.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Tiskový server %1 požaduje vaše heslo.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Chybné uživatelské jméno nebo heslo. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Doména:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Odesílání úlohy</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Tisknout</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 nelze přečíst: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 je složka. Zvolte soubor.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 přesahuje %2. Víc nelze vytisknout.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 nelze zkopírovat pro tisk: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 je prázdný. Není co tisknout.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Dokument</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n dalších</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Dokument nemá žádné stránky. Není co tisknout.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Náhled není k dispozici. Chcete-li jej vidět, nainstalujte cups.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Náhled není k dispozici, protože převod dokumentu trvá příliš dlouho.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Pro tento typ dokumentu není náhled k dispozici.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Dokument je chráněn heslem. Chcete-li jej vytisknout, zadejte heslo.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Dokument je poškozený a nelze jej zobrazit. Tiskárna jej možná nedokáže vytisknout.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Dokument je poškozený. Jeho část může chybět.</translation>
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
        <translation>Zvolit…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Zvolit dokument</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Dokument nelze otevřít. Chcete-li jej otevřít, nainstalujte qpdf.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Otevírání dokumentu trvá příliš dlouho.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Pro kopii dokumentu není dost místa.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Dokument je poškozený a nelze jej otevřít.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Chybné heslo. Zbývá jeden pokus.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Chybné heslo. Zbývá %n pokus.</numerusform>
            <numerusform>Chybné heslo. Zbývají %n pokusy.</numerusform>
            <numerusform>Chybné heslo. Zbývá %n pokusů.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>vyhledání tiskového serveru %1 trvalo příliš dlouho</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>tiskový server s názvem %1 neexistuje</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>k tiskovému serveru %1 se nelze připojit šifrovaně</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>k tiskovému serveru %1 se nelze připojit. Je spuštěný?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>tiskový server %1 přestal číst dokument</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>odpověď tiskového serveru je neúplná</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>odpověď tiskového serveru je příliš velká</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>tiskový server %1 neodpověděl do %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>tiskový server %1 ukončil spojení</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>tiskový server %1 přesměroval na jinou adresu (stav HTTP %2); přesměrování se nenásledují</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>tiskový server %1 požaduje heslo</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>tiskový server %1 odpověděl: %2 (stav HTTP %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>odpověď tiskového serveru nelze přečíst</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>volby úlohy</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>uživatelské jméno</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>název úlohy</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>otisk přístupového kódu</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>přístupový kód</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>čas úlohy</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>přístupový kód složky</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>složka</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>číslo uživatele</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>číslo účtu</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>tiskový server nepřidělil úloze číslo</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>na „%1“ nelze vytvořit úlohu: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>úlohu %1-%2 nelze zrušit: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>odpověď tiskového serveru neobsahuje úlohu</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>nelze zjistit, co vidí ostatní uživatelé: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: řádek %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>soubor PPD tiskárny %1 nelze získat: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>soubor PPD nelze uložit: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>soubor PPD tiskárny %1 je příliš velký</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>standardní vstup nelze přečíst</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: je složka</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>úloha byla zastavena</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>tiskový server úlohu zastavil: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>tato tiskárna nepřijímá tento typ souboru</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>tato tiskárna nepřijímá tento typ souboru (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>%1 nelze vytisknout: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>tiskový server úlohu odmítl: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>„%1“ nepřijímá úlohy</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>„%1“ nepřijímá úlohy: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>tiskárna s názvem „%1“ neexistuje</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>tiskárnu „%1“ nelze otevřít: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>rozšíření „Správa úloh“ nemá panel pro dialog tisku</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>panel nemá rozvržení</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>odpověď tiskárny nelze zapsat do dočasné složky. Není disk plný?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>odpověď tiskárny není seznam složek</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>JobHandling.pde nelze najít vedle programu ani ve složce knihoven</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>složky nelze zapamatovat: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Správa úloh pro model %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>zatím nebylo nic vytištěno</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>předvolba nemůže uložit název této složky</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>předvolba „%1“ neexistuje; tato tiskárna nemá žádné předvolby</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>předvolba „%1“ neexistuje; tato tiskárna má: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>předvolba „%1“ je poškozená a zůstala beze změny</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>předvolby této tiskárny jsou poškozené a zůstaly beze změny</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>název předvolby smí mít nejvýše %1 znaků; zvolte kratší</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>předvolby této tiskárny nelze přečíst: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>předvolba „%1“ je pro jiný model tiskárny, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>tiskový server už úlohu nezná</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>úlohu %1 nelze zrušit: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>chybné uživatelské jméno nebo heslo pro tiskárnu „%1“</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>chybné uživatelské jméno nebo heslo pro tiskový server %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>tiskárna „%1“ požaduje heslo</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>tiskárnu „%1“ nelze nastavit: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>tiskárna neodpovídá</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>adresa je neznámá</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>spojení odmítnuto</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>spojení bylo ukončeno</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>včas nepřišla odpověď</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>odpověď nelze přečíst</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>tiskárna není dostupná</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>žádný seznam složek z %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: složka, nikoli soubor PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>není nastavena výchozí tiskárna; zvolte ji pomocí -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>patří jiné tiskárně</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>úlohu %1 nelze spustit znovu: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>úlohu %1 nelze změnit: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>At</source>
        <translation>V čase</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Zadejte čas, například 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Čeká na tiskárnu</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Čeká na 1 jinou úlohu</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Čeká na %n jinou úlohu</numerusform>
            <numerusform>Čeká na %n jiné úlohy</numerusform>
            <numerusform>Čeká na %n jiných úloh</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Podrženo: tiskárna požaduje heslo</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Podrženo do času tisku</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Podrženo do uvolnění</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Tiskne</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Tiskne stránku %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Tiskne stránku %1 z %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Zastaveno: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Zastaveno: tiskárna je pozastavená</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zastaveno</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Čeká na %1, dokud tam nezadáte přístupový kód</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Čeká na %1, dokud ji tam neuvolníte</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Vytištěno</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Vytištěno a uchováno na %1 pro opakovaný tisk</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Jedna kopie je vytištěna, ostatní čekají na %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Zrušil uživatel %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Zrušeno na tiskárně</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Zrušeno</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Zastaveno tiskovým serverem</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nevytištěno</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Není známo, zda je úloha vytištěna</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Připojování k tiskárně</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Rozvržení</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Úloha</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Další volby</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>V souboru PDF zůstávají stránky beze změny. Lze zvolit jen stránky a jejich pořadí.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Náhled není k dispozici, protože vykreslování stránky trvá příliš dlouho.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Pro tento typ dokumentu není náhled k dispozici.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Náhled není k dispozici. Chcete-li jej vidět, nainstalujte poppler-utils.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Náhled není k dispozici, protože tento dokument PDF nelze přečíst.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Předchozí stránka</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Další stránka</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Stránka</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Všechny stránky</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Vybrané stránky</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Dokument končí na stránce %1. Vytisknou se stránky: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Uzamknout: %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Chcete-li získat názvy složek tiskárny, zadejte její adresu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>„%1“ není adresa. Zadejte název nebo IP adresu tiskárny.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Tato tiskárna dokumenty neukládá, takže volba složky nemá žádný účinek.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Uzamčeno: tento údaj je zapamatován pro tuto tiskárnu.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Odemčeno: tento údaj platí jen pro tuto úlohu.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Šířka</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Výška</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>palců</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Vlastní velikost</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Zadejte šířku mezi %1 a %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Zadejte výšku mezi %1 a %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Chráněný dokument</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 je chráněn heslem. Chcete-li dokument vytisknout, zadejte heslo.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Nejsou vybrány žádné stránky.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Chcete-li ukládat soubory PDF, nainstalujte qpdf.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Ukládání trvá příliš dlouho.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Není dost místa.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Zastaveno.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 nelze uložit. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Procenta</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Vlastní</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Zadejte procenta mezi %1 a %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Naposledy použité</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Žádné předvolby</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Uložit jako předvolbu…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Smazat předvolbu</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (změněno)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Předvolby: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Uložit jako předvolbu</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Zahrnout přístupové kódy</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Název:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Nahradit předvolbu „%1“?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Jako PDF lze uložit jen dokumenty PDF.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Nejsou vybrány žádné stránky.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Stránka %1 z %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>List %1 z %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>List %1 z %2, přední strana</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>List %1 z %2, zadní strana</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 stránka</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n stránka</numerusform>
            <numerusform>%1, %n stránky</numerusform>
            <numerusform>%1, %n stránek</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Celkem: 1 list papíru</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Celkem: %n list papíru</numerusform>
            <numerusform>Celkem: %n listy papíru</numerusform>
            <numerusform>Celkem: %n listů papíru</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Připojování k tiskárně…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Uloží vybrané stránky do souboru.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Tisknout</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Tato tiskárna nepodporuje: %1. Úloha se vytiskne bez toho.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Uložit jako PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Tisknout na %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Není vybrán žádný dokument</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Čtení dokumentu…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Dokument je dlouhý. Jeho zbytek se přečte při tisku.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Náhled není k dispozici. Aplikace připraví stránky, až stisknete „Tisknout“.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Žádný dokument</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Zvolit dokument</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Dokumenty PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Úloha %1 byla odeslána na %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Uloženo jako %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Úloha nebyla vytištěna. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Uložit…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Zvolte dokument, který chcete vytisknout.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Rušení úlohy…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Tiskárna:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Tato tiskárna nepodporuje z předvolby: %1. Ostatní je nastaveno.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Bez podržení</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Úloha %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Její údaje nebylo možné zapamatovat.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Tisknout znovu</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Zrušit úlohu</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 složka z %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n složka z %1</numerusform>
            <numerusform>%n složky z %1</numerusform>
            <numerusform>%n složek z %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Tiskový server už tuto tiskárnu nemá. Mohla být odebrána.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Tiskárna</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Název:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Popis:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Umístění:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Zpráva:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Neznámá hladina</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Tiskárna</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Žádná tiskárna</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Hledání tiskáren…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Zadejte název tiskárny.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Stisknutím Enter vyberete %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Odpovídá více tiskáren. Vyberte jednu z nich.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Tiskárna s názvem „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Podrobnosti o tiskárně</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Uložit jako PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Nepřijímá úlohy: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nepřijímá úlohy</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Pozastavena: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastavena</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Tiskne</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Připravena</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 úloha čeká</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n úloha čeká</numerusform>
            <numerusform>%n úlohy čekají</numerusform>
            <numerusform>%n úloh čeká</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>V síti</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Žádná tiskárna nepřijímá úlohy. Zkontrolujte tiskárny v nastavení systému a zkuste to znovu.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Kdo vidí tuto úlohu?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Ostatní uživatelé vidí, že tato úloha existuje, ale žádné její podrobnosti.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Ostatní uživatelé vidí: %1. Chcete-li to skrýt, přidejte tyto řádky do zásad „%2“ tiskového serveru:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (změněno)</translation>
    </message>
</context>
</TS>
