<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>musi mieć wartość %1 lub %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>nieoczekiwany argument</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>nieznana opcja %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 wymaga wartości</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nie przyjmuje wartości</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>opcji %1 nie można użyć razem z %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Użyj „%1 --help”.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 wymaga %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>nie można pisać na standardowe wyjście</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>wiersz jest za długi</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>wiersz nie jest w UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>wiersz jest pusty</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>nie ma terminala, na którym można zapytać</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>przerwano</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>musi mieścić się między 0.1 a 3600 sekund</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>liczba kopii musi mieścić się między %1 a %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>priorytet musi mieścić się między %1 a %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>liczba sekund musi mieścić się między %1 a %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 podano dwa razy</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>rezygnuje, gdy serwer milczy tak długo (domyślnie 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>wypisuje ten tekst lub wersję</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Użycie: %1 [OPCJA]... [PLIK]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>jak w zwykłym poleceniu drukowania</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Zadanie nie jest wstrzymywane w drukarce. Włącz najpierw „Wstrzymanie”.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Szybki zapis nie ma kodu dostępu.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Nazwy wymaga tylko folder własny. Wybierz najpierw „Folder własny”.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Kod dostępu ma tylko folder własny albo chroniony.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Ta drukarka rozpoznaje użytkownika po numerze, a nie po nazwie logowania.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Ta wartość jest zablokowana i zapamiętana dla tej drukarki. Otwórz kłódkę, aby ją zmienić.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Ukryj cyfry</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Pokaż cyfry</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Wybierz drukarkę</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Wybierz drukarkę z listy. Jeśli lista jest długa, wpisz część nazwy drukarki i naciśnij klawisz Enter. Wiersz pod listą informuje, czy drukarka jest gotowa.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Wydrukuj niektóre strony</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Wybierz „Wybrane strony” i wpisz numery lub zakresy stron, na przykład 1-3, 5. Zakres może być otwarty: 5- drukuje stronę 5 i wszystkie następne.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Wydrukuj po obu stronach</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Wybierz „Długa krawędź” dla stron przewracanych jak w książce albo „Krótka krawędź” dla stron przewracanych jak w notatniku.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Sprawdź, co zostanie wydrukowane</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Podgląd pokazuje arkusze papieru tak, jak wyjdą z drukarki. Przewracaj strony strzałkami pod podglądem albo klawiszami Page Up i Page Down, a powiększaj je klawiszem Ctrl i kółkiem myszy.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Zapisz strony jako plik PDF</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Wstrzymaj zadanie w drukarce za pomocą kodu dostępu</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>W sekcji „Obsługa zadań” włącz „Wstrzymanie” i wpisz kod dostępu o długości do 8 cyfr. Zadanie czeka w drukarce, aż ktoś wpisze tam kod dostępu. „Wstrzymaj po wydruku” zachowuje zadanie po wydrukowaniu. „Wydruk próbny” drukuje jedną kopię i wstrzymuje pozostałe.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Podaj, kim jesteś</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Niektóre drukarki pytają, kto drukuje. W sekcji „Użytkownik i konto” wpisz numer użytkownika albo nazwę logowania i hasło.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Użyj wartości ponownie</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Zamknij kłódkę obok wartości. Wartość zostanie zapamiętana dla tej drukarki. Aby ją zmienić, otwórz kłódkę.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Wybierz folder w drukarce</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Zapisz ustawienia jako szablon</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Naciśnij „Szablony” i wybierz „Zapisz jako szablon”. Aby ponownie użyć ustawień, wybierz tam szablon. Kody dostępu są zapisywane tylko wtedy, gdy je dołączysz.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Sprawdź, co inni widzą z zadania</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Anuluj zadanie</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Korzystaj z klawiatury</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt i podkreślona litera prowadzą do elementu; Alt, Shift i litera prowadzą do kłódki obok niego. Enter drukuje, Esc anuluje, a F1 otwiera tę pomoc. Ctrl+R pokazuje cyfry kodu dostępu, gdy jest w nim kursor.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Pomoc dotycząca drukowania</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Wydrukuj kilka stron na arkuszu</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>W sekcji „Układ” wybierz liczbę stron na arkusz, ich kolejność i obramowanie. Na drukarce, która wykonuje broszury, „Broszura” układa strony tak, że złożone arkusze można czytać jak książkę.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Dopasuj strony do papieru</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>W sekcji „Układ” opcja „Skalowanie” określa, co dzieje się ze stronami większymi lub mniejszymi niż papier. „Dopasuj do papieru” pokazuje je w całości, „Wypełnij papier” nie zostawia marginesu i może obciąć krawędzie, a „Rzeczywisty rozmiar” zostawia je bez zmian. Wartość procentowa opcji „Własne” dotyczy obrazów.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Wybierz czas wydruku</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>W sekcji „Zadanie” opcja „Drukuj” wstrzymuje zadanie na serwerze wydruku do podanej godziny albo, z wartością „Wstrzymane”, do czasu zwolnienia go na systemowej liście zadań wydruku. Spośród oczekujących zadań pierwsze jest drukowane to o najwyższym priorytecie.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Dodaj strony tytułowe i informacje rozliczeniowe</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>W sekcji „Zadanie” wybierz stronę tytułową drukowaną przed dokumentem albo po nim. Informacje rozliczeniowe, na przykład numer projektu, są przechowywane z zadaniem w rejestrach serwera wydruku.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Znajdź inną opcję drukarki</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>„Więcej opcji” zawiera wszystkie pozostałe opcje drukarki. Wpisz część nazwy w filtrze, aby zobaczyć tylko opcje, które ją zawierają.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Wybierz „Zapisz jako PDF” na liście drukarek i naciśnij „Zapisz”. Plik zawiera wybrane strony. Można zapisywać tylko dokumenty PDF i wybierać tylko ich strony i kolejność stron.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Wydrukuj dokument chroniony hasłem</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Po naciśnięciu „Drukuj” okno pyta o hasło dokumentu. Drukuje kopię bez hasła, którą tylko Ty możesz odczytać i która jest potem usuwana.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>W sekcji „Obsługa zadań” włącz „Wstrzymanie”. W sekcji „Archiwizacja dokumentów” wybierz „Folder własny” i wpisz nazwę folderu. „Pobierz nazwy folderów” pyta drukarkę o jej foldery, aby można było wybrać jeden z listy.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>W podsumowaniu naciśnij „Kto widzi to zadanie?”. Odpowiedź podaje, które szczegóły zadania serwer wydruku pokazuje innym użytkownikom i jak je ukryć.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Naciśnij „Anuluj” podczas wysyłania zadania. Gdy okno śledzi zadanie, naciśnij „Anuluj zadanie”; „Drukuj ponownie” wysyła jeszcze raz zadanie, które się nie powiodło. Po zamknięciu okna użyj systemowej listy zadań wydruku.</translation>
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
        <translation>Sortuj</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Odwróć</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Drukuj tylko</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Rozmiar papieru</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Dwustronnie</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Jakość</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Źródło papieru</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Rodzaj papieru</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Taca wyjściowa</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Zszywanie</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Dziurkowanie</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Składanie</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientacja</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Stron na arkusz</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broszura</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Kolejność stron</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Obramowanie</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalowanie</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorytet</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Informacje rozliczeniowe</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Strony tytułowe</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Długa krawędź</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Krótka krawędź</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Wszystkie strony</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Strony nieparzyste</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Strony parzyste</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Pionowa</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Pozioma</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Odwrócona pozioma</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Odwrócona pionowa</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Od lewej do prawej, z góry na dół</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Od lewej do prawej, z dołu do góry</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Od prawej do lewej, z góry na dół</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Od prawej do lewej, z dołu do góry</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Z góry na dół, od lewej do prawej</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Z góry na dół, od prawej do lewej</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Z dołu do góry, od lewej do prawej</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Z dołu do góry, od prawej do lewej</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Pojedyncza linia</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Gruba pojedyncza linia</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Podwójna linia</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Gruba podwójna linia</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Dopasuj do papieru</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Rzeczywisty rozmiar</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Wypełnij papier</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Wstrzymane</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niski</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Średni</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Wysoki</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Pilny</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standardowa</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Jawne</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Niejawne</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Poufne</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Tajne</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Ściśle tajne</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Własny %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Własne %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>O %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Drukowanie dwustronne nie jest możliwe na: %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 „%2” nie jest możliwe razem z %3 „%4”.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Wyłącz druk dwustronny</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Ustaw %1 na %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Strony %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 kopia</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n kopia</numerusform>
            <numerusform>%n kopie</numerusform>
            <numerusform>%n kopii</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Wpisz numery lub zakresy stron, na przykład 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Dokument kończy się na stronie %1. Wpisz numery stron do %1.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Bieżąca strona</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Zaznaczenie</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Wykończenie</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: ta drukarka tego nie oferuje</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>ta drukarka nie pyta, kto drukuje</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 może mieć %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>co najwyżej %n cyfrę</numerusform>
            <numerusform>co najwyżej %n cyfry</numerusform>
            <numerusform>co najwyżej %n cyfr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>co najwyżej %n znak</numerusform>
            <numerusform>co najwyżej %n znaki</numerusform>
            <numerusform>co najwyżej %n znaków</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>opcji %1 nie można użyć razem z --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 wymaga --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 wymaga --folder NAME folderu z kodem dostępu lub folderu własnego</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>opcji %1 nie można użyć razem z numerem użytkownika</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Kod dostępu</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>kod dostępu wstrzymanego zadania</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main lub nazwa folderu</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Kod folderu</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>kod folderu</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>nazwa logowania</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>hasło do nazwy logowania</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>numer użytkownika zamiast logowania</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>numer konta</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>nazwa użytkownika na drukarce</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>nazwa zadania na drukarce</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>brakuje numeru użytkownika; podaj go za pomocą %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>brakuje nazwy logowania; podaj ją za pomocą %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p to -q, a -w to -m; pozostałe nie mają znaczenia</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>zastępują kolejkę, gdy nic nie jest wysyłane</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>wypisuje ustawienia zadania i niczego nie wysyła; zachowuje tylko to, czego żądają --remember, --forget lub --save-preset</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>wypisuje podsumowanie panelu zamiast ustawień</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>wypisuje kolejki lub tylko te z obsługą zadań oraz drukarki w sieci</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>pobiera, zapamiętuje i wypisuje foldery drukarki</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>pokazuje, co inni użytkownicy serwera widzą z opcji zadania i jak to ukryć</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>wypisuje, co dzieje się z zadaniem, aż zostanie wydrukowane lub wstrzymane na drukarce; w innym razie kończy się kodem 1 lub kodem 4, gdy po SECONDS zadanie nadal oczekuje</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>wypisuje JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>hasło, o które prosi serwer lub drukarka</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>wstrzymuje zadanie: przed drukowaniem, po wydrukowaniu lub po wydruku próbnym</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>nie wstrzymuje zadania</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>bierze X (pin, folder-pin, password) z pierwszego wiersza pliku lub standardowego wejścia („-”) albo pyta na terminalu: wiersz poleceń mogą zobaczyć inni użytkownicy</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>zapamiętuje wartości X dla następnych zadań tej kolejki</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>przestaje je pamiętać</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>zaczyna od szablonu tej kolejki</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>zapisuje ustawienia jako szablon, a kody dostępu tylko razem z --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>robi tylko to, dla -d lub --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Drukuje pliki lub standardowe wejście z obsługą zadań drukarki.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Kończy się kodem 0 wykonano, 1 błąd, 2 złe użycie, 3 odmowa panelu, 4 oczekuje.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>koniec oczekiwania: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>w sieci</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>gotowa</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zatrzymana</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>drukuje</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>nie przyjmuje zadań</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 zadanie</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n zadanie</numerusform>
            <numerusform>%n zadania</numerusform>
            <numerusform>%n zadań</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>ta drukarka nie ma listy folderów</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>adres drukarki jest nieznany; podaj go za pomocą --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>„%1” nie jest adresem</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: inni użytkownicy nie widzą żadnych opcji zadania.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: inni użytkownicy widzą z zadania: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Administrator może to ukryć w cupsd.conf, w zasadach drukarki:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Administrator może to ukryć w cupsd.conf, w &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>zablokowany</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder nic nie zmienia: ta drukarka nie archiwizuje dokumentów</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>nie można zapamiętać wartości: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>zadanie wysłano, ale: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>zadanie surowe (raw) omija sterownik, a z nim obsługę zadań</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>drukarka „%1” nie oferuje obsługi zadań</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m jest pomijane: dotyczy nowego zadania</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>ostrzeżenie: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i zmienia wysłane już zadanie; nie podawaj plików</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i zmienia zadanie tam, gdzie ono jest; nie podawaj -d ani --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i nie może zmienić obsługi wysłanego już zadania</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait wymaga zadania do wydrukowania</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>listy nie można łączyć z opcjami zadania</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>nie podano drukarki; wskaż ją za pomocą -d lub --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd wymaga --dry-run lub --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>ze standardowego wejścia można odczytać tylko jedną wartość</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>nie może być puste</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>musi być godziną taką jak 18:30 (UTC), hold, immediate, resume, restart lub słowem kluczowym serwera wydruku takim jak evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>musi być zadaniem takim jak 12 lub QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 jest pomijane: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS nie ma formularzy</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS nie ma trybów; użyj -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>zestawem znaków jest zawsze UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>serwer wydruku rozpoznaje typ; użyj -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember i --forget nie mogą jednocześnie wymieniać %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>użyj tylko jednej z opcji -i, --dry-run, --list, --folders, --check, --list-presets i --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Błędne hasło. Hasło użytkownika %1 do %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Hasło użytkownika %1 do %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; podaj je za pomocą --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>wysyłanie dokumentu %1: %2 MiB, %3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>wysyłanie dokumentu %1: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>zmienia wysłane zadanie: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>hasło z pliku nie jest wysyłane do „%1”, drukarki w sieci, która nie jest skonfigurowana na serwerze wydruku</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>„%1” nie jest skonfigurowana na serwerze wydruku; używana jest drukarka w sieci: %2</translation>
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
        <translation>brak dostępnej drukarki</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>nie można zapisać %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>otwiera tę sekcję</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>zapisuje obraz okna i kończy</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>wypisuje, jak długo trwało uruchamianie, i kończy</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Pokazuje okno drukowania dla plików lub standardowego wejścia.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Kończy się kodem 0 wysłano, 1 nie wysłano, 2 złe użycie.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Łączenie</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Otwarta pokrywa</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Brak sterownika</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Brak wywoływacza</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Mało wywoływacza</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Otwarte drzwiczki</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Za gorąca</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Nagrzewanie</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Wstrzymuje nowe zadania</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Brak podajnika papieru</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Brak tuszu lub toneru</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Mało tuszu lub toneru</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Pojemnik na zużyty toner prawie pełny</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Pojemnik na zużyty toner pełny</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Brak papieru</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Zacięcie papieru</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Mało papieru</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Potrzebny papier</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Wstrzymywanie</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Bęben zużyty</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Bęben prawie zużyty</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Wymaga uwagi</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Prawie pełna taca wyjściowa</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Pełna taca wyjściowa</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Brak tacy wyjściowej</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymana</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Wyłączona</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Pamięć drukarki pełna</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Częściowo zatrzymana</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Zatrzymywanie</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Nie odpowiada</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Brak toneru</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Mało toneru</translation>
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
        <translation>Pół US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Pocztówka (Japonia)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Podwójna pocztówka (Japonia)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Koperta Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Koperta %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Koperta nr %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Podajnik główny</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Podajnik alternatywny</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kaseta</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Kaseta %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Podajnik %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Podawanie ręczne</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Podajnik uniwersalny</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Podajnik kopert</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Ręczne podawanie kopert</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Podajnik o dużej pojemności</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Podajnik górny</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Podajnik środkowy</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Podajnik dolny</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Podajnik lewy</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Podajnik prawy</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Podajnik boczny</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Podajnik tylny</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Podajnik centralny</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Podajnik zdjęć</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Podajnik płyt</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Podajnik pocztówek</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Rolka papieru</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Alternatywna rolka papieru</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolka %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Papier zwykły</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papier firmowy</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Papier z nadrukiem</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Papier dziurkowany</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Papier makulaturowy</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Papier dokumentowy</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Papier gruby</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Papier cienki</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Papier powlekany</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papier do drukarek atramentowych</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papier wysokiej jakości</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Papier kolorowy</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Papier bawełniany</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Folia przezroczysta</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Koperta</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etykiety</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papier fotograficzny</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Papier fotograficzny błyszczący</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papier fotograficzny z wysokim połyskiem</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papier fotograficzny półbłyszczący</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papier fotograficzny satynowy</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papier fotograficzny matowy</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Papier ciągły</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Papier z zakładkami</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Folia</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Płyta</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Górna taca wyjściowa</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Środkowa taca wyjściowa</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Dolna taca wyjściowa</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Lewa taca wyjściowa</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Prawa taca wyjściowa</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Centralna taca wyjściowa</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Boczna taca wyjściowa</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Tylna taca wyjściowa</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Zadrukowaną stroną do góry</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Zadrukowaną stroną w dół</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Układarka %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Układarka</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Skrzynka %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Moja skrzynka</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Czarno-białe</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Tylko czarny, bez szarości</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Robocza</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalna</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Wysoka</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Zszyj</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Dwie zszywki</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Trzy zszywki</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Szycie brzegowe</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Szycie grzbietowe</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broszura</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Dziurkuj</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Dwa otwory</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Trzy otwory</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Cztery otwory</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Wiele otworów</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Opraw</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Przytnij</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Dodaj okładkę</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Przesuń zadania</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminuj</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Złóż</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Złóż na pół</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Składanie listowe</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Składanie w Z</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Pół składania w Z</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Składanie w harmonijkę</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Składanie okienkowe</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Podwójne składanie okienkowe</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Składanie równoległe</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>u góry po lewej</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>u dołu po lewej</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>u góry po prawej</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>u dołu po prawej</translation>
    </message>
    <message>
        <source>left</source>
        <translation>po lewej</translation>
    </message>
    <message>
        <source>top</source>
        <translation>u góry</translation>
    </message>
    <message>
        <source>right</source>
        <translation>po prawej</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>u dołu</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, bez marginesów</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Strona tytułowa przed</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Strona tytułowa po</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Wymagane hasło</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>Drukarka %1 prosi o hasło.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Serwer wydruku %1 prosi o hasło.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Błędna nazwa użytkownika lub hasło. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Domena:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Wysyłanie zadania</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 to folder. Wybierz plik.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 przekracza %2, największy rozmiar, jaki można wydrukować.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>Nie można skopiować %1 do wydruku: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 jest pusty. Nie ma czego drukować.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Dokument</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 i %n inny</numerusform>
            <numerusform>%1 i %n inne</numerusform>
            <numerusform>%1 i %n innych</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Dokument nie ma stron. Nie ma czego drukować.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Podgląd jest niedostępny. Zainstaluj cups, aby go zobaczyć.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Podgląd jest niedostępny, ponieważ konwersja dokumentu trwa zbyt długo.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Podgląd jest niedostępny dla tego typu dokumentu.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Dokument jest chroniony hasłem. Wpisz hasło, aby go wydrukować.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Dokument jest uszkodzony i nie można go pokazać. Drukarka może nie być w stanie go wydrukować.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Dokument jest uszkodzony. Może brakować jego części.</translation>
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
        <translation>Wybierz…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Wybierz dokument</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Nie można otworzyć dokumentu. Zainstaluj qpdf, aby go otworzyć.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Otwieranie dokumentu trwa zbyt długo.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Nie ma dość miejsca na kopię dokumentu.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Dokument jest uszkodzony i nie można go otworzyć.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Błędne hasło. Możesz spróbować jeszcze raz.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Błędne hasło. Pozostała %n próba.</numerusform>
            <numerusform>Błędne hasło. Pozostały %n próby.</numerusform>
            <numerusform>Błędne hasło. Pozostało %n prób.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>wyszukiwanie serwera wydruku %1 trwało zbyt długo</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>nie ma serwera wydruku o nazwie %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>nie można nawiązać szyfrowanego połączenia z serwerem wydruku %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>nie można połączyć się z serwerem wydruku %1. Czy jest uruchomiony?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>serwer wydruku %1 przestał odczytywać dokument</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>odpowiedź serwera wydruku jest niepełna</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>odpowiedź serwera wydruku jest za duża</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>serwer wydruku %1 nie odpowiedział w ciągu %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>serwer wydruku %1 zamknął połączenie</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>serwer wydruku %1 przekierował pod inny adres (stan HTTP %2); przekierowania nie są obsługiwane</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>serwer wydruku %1 prosi o hasło</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>serwer wydruku %1 odpowiedział: %2 (stan HTTP %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>nie można odczytać odpowiedzi serwera wydruku</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>opcje zadania</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>nazwa użytkownika</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>nazwa zadania</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>skrót kodu dostępu</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>kod dostępu</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>czas zadania</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>kod dostępu folderu</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>numer użytkownika</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>numer konta</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>serwer wydruku nie nadał zadaniu numeru</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>nie można utworzyć zadania na „%1”: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>nie można anulować zadania %1-%2: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>odpowiedź serwera wydruku nie zawiera zadania</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>nie można ustalić, co widzą inni użytkownicy: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: wiersz %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>nie można pobrać pliku PPD drukarki %1: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>nie można zapisać pliku PPD: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>plik PPD drukarki %1 jest za duży</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>nie można odczytać standardowego wejścia</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: to folder</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>zadanie zostało zatrzymane</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>serwer wydruku zatrzymał zadanie: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>ta drukarka nie przyjmuje plików tego typu</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>ta drukarka nie przyjmuje plików tego typu (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>nie można wydrukować %1: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>serwer wydruku odrzucił zadanie: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>„%1” nie przyjmuje zadań</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>„%1” nie przyjmuje zadań: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>nie ma drukarki o nazwie „%1”</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>nie można otworzyć drukarki „%1”: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>rozszerzenie „Obsługa zadań” nie ma panelu dla okna drukowania</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>panel nie ma układu</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>nie można zapisać odpowiedzi drukarki w folderze tymczasowym. Czy dysk jest pełny?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>odpowiedź drukarki nie jest listą folderów</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>nie można znaleźć JobHandling.pde obok programu ani w folderze bibliotek</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>nie można zapamiętać folderów: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Obsługa zadań modelu %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>nic jeszcze nie wydrukowano</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>szablon nie może przechować nazwy tego folderu</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>nie ma szablonu „%1”; ta drukarka nie ma szablonów</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>nie ma szablonu „%1”; ta drukarka ma: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>szablon „%1” jest uszkodzony i pozostał bez zmian</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>szablony tej drukarki są uszkodzone i pozostały bez zmian</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>nazwa szablonu może mieć najwyżej %1 znaków; wybierz krótszą</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>nie można odczytać szablonów tej drukarki: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>szablon „%1” jest przeznaczony dla innego modelu drukarki, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>serwer wydruku nie zna już tego zadania</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>nie można anulować zadania %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>błędna nazwa użytkownika lub hasło do drukarki „%1”</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>błędna nazwa użytkownika lub hasło do serwera wydruku %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>drukarka „%1” prosi o hasło</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>nie można skonfigurować drukarki „%1”: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>drukarka nie odpowiada</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>adres jest nieznany</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>połączenie odrzucone</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>połączenie zostało zamknięte</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>brak odpowiedzi na czas</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>nie można odczytać odpowiedzi</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>drukarka jest nieosiągalna</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>brak listy folderów z %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: to folder, a nie plik PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>nie ustawiono drukarki domyślnej; wskaż drukarkę za pomocą -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>należy ono do innej drukarki</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>nie można uruchomić ponownie zadania %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>nie można zmienić zadania %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>At</source>
        <translation>O godzinie</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Wpisz godzinę, na przykład 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Oczekuje na drukarkę</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Oczekuje na 1 inne zadanie</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Oczekuje na %n inne zadanie</numerusform>
            <numerusform>Oczekuje na %n inne zadania</numerusform>
            <numerusform>Oczekuje na %n innych zadań</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Wstrzymano: drukarka prosi o hasło</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Wstrzymano do godziny wydruku</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Wstrzymano do czasu zwolnienia</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukuje</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Drukuje stronę %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Drukuje stronę %1 z %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Zatrzymano: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Zatrzymano: drukarka jest wstrzymana</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zatrzymano</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Czeka w %1, aż wpiszesz tam swój kod dostępu</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Czeka w %1, aż zwolnisz je tam</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Wydrukowano</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Wydrukowano i zachowano w %1 do ponownego wydruku</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Wydrukowano jedną kopię, pozostałe czekają w %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Anulowane przez %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Anulowano na drukarce</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Anulowano</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Zatrzymano przez serwer wydruku</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nie wydrukowano</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Nie wiadomo, czy zadanie zostało wydrukowane</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Łączenie z drukarką</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Układ</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Zadanie</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Więcej opcji</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtruj</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>W pliku PDF strony pozostają bez zmian. Można wybrać tylko strony i ich kolejność.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Podgląd jest niedostępny, ponieważ rysowanie strony trwa zbyt długo.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Podgląd jest niedostępny dla tego typu dokumentu.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Podgląd jest niedostępny. Zainstaluj poppler-utils, aby go zobaczyć.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Podgląd jest niedostępny, ponieważ nie można odczytać tego dokumentu PDF.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Poprzednia strona</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Następna strona</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Strona</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Wszystkie strony</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Wybrane strony</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Dokument kończy się na stronie %1. Drukowane strony: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Zablokuj: %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Wpisz adres drukarki, aby pobrać nazwy jej folderów.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>„%1” nie jest adresem. Wpisz nazwę lub adres IP drukarki.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Ta drukarka nie archiwizuje dokumentów, więc wybór folderu nic nie zmienia.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Zablokowane: ta wartość jest zapamiętana dla tej drukarki.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Odblokowane: ta wartość dotyczy tylko tego zadania.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>cale</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Rozmiar własny</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Wpisz szerokość od %1 do %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Wpisz wysokość od %1 do %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Chroniony dokument</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 jest chroniony hasłem. Wpisz hasło, aby wydrukować dokument.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Nie wybrano żadnych stron.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Zainstaluj qpdf, aby zapisywać pliki PDF.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Zapisywanie trwa zbyt długo.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Nie ma dość miejsca.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Zatrzymano.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>Nie można zapisać %1. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Procent</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Własne</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Wpisz wartość procentową od %1 do %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Szablony</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Ostatnio używane</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Brak szablonów</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Zapisz jako szablon…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Usuń szablon</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (zmieniony)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Szablony: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Zapisz jako szablon</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Dołącz kody dostępu</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Zastąpić szablon „%1”?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Jako PDF można zapisać tylko dokumenty PDF.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Nie wybrano żadnych stron.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Strona %1 z %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Arkusz %1 z %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Arkusz %1 z %2, przód</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Arkusz %1 z %2, tył</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 strona</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n strona</numerusform>
            <numerusform>%1, %n strony</numerusform>
            <numerusform>%1, %n stron</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Razem: 1 arkusz papieru</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Razem: %n arkusz papieru</numerusform>
            <numerusform>Razem: %n arkusze papieru</numerusform>
            <numerusform>Razem: %n arkuszy papieru</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Łączenie z drukarką…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Zapisuje wybrane strony w pliku.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Ta drukarka nie obsługuje: %1. Zadanie zostanie wydrukowane bez tego.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Zapisz jako PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Drukuj na %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Nie wybrano dokumentu</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Odczytywanie dokumentu…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Dokument jest długi. Jego reszta zostanie odczytana podczas drukowania.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Podgląd jest niedostępny. Program przygotuje strony po naciśnięciu „Drukuj”.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Brak dokumentu</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Wybierz dokument</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Dokumenty PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Zadanie %1 wysłano do %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Zapisano jako %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Zadanie nie zostało wydrukowane. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Zapisz…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Wybierz dokument do wydrukowania.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Anulowanie zadania…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drukarka:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokument:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Ta drukarka nie obsługuje z szablonu: %1. Reszta jest ustawiona.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Bez wstrzymania</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Zadanie %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Nie można było zapamiętać jego wartości.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Drukuj ponownie</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Anuluj zadanie</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 folder z %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n folder z %1</numerusform>
            <numerusform>%n foldery z %1</numerusform>
            <numerusform>%n folderów z %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Serwer wydruku nie ma już tej drukarki. Mogła zostać usunięta.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Drukarka</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Opis:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Położenie:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Komunikat:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Poziom nieznany</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Drukarka</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Brak drukarki</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Wyszukiwanie drukarek…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Wpisz nazwę drukarki.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Naciśnij Enter, aby wybrać %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Pasuje kilka drukarek. Wybierz jedną z nich.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Nie ma drukarki o nazwie „%1”.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Szczegóły drukarki</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Zapisz jako PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Nie przyjmuje zadań: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nie przyjmuje zadań</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Wstrzymana: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymana</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukuje</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowa</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 zadanie oczekuje</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n zadanie oczekuje</numerusform>
            <numerusform>%n zadania oczekują</numerusform>
            <numerusform>%n zadań oczekuje</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>W sieci</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Żadna drukarka nie przyjmuje zadań. Sprawdź drukarki w ustawieniach systemu i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Kto widzi to zadanie?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Inni użytkownicy widzą, że to zadanie istnieje, ale nie widzą żadnych szczegółów.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Inni użytkownicy widzą: %1. Aby to ukryć, dodaj te wiersze do zasad „%2” serwera wydruku:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (zmieniony)</translation>
    </message>
</context>
</TS>
