<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>értéke %1 vagy %2 lehet</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>váratlan argumentum</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>ismeretlen kapcsoló: %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 értéket igényel</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nem kaphat értéket</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 nem használható ezzel együtt: %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Súgó: „%1 --help”.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 csak ezzel együtt használható: %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>a szabványos kimenet nem írható</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>a sor túl hosszú</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>a sor nem UTF-8 kódolású</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>a sor üres</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>nincs terminál, ahol kérdezni lehetne</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>megszakítva</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>0.1 és 3600 másodperc között kell lennie</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>a példányszámnak %1 és %2 között kell lennie</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>a prioritásnak %1 és %2 között kell lennie</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>a másodpercek számának %1 és %2 között kell lennie</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 kétszer szerepel</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>feladja, ha a kiszolgáló ennyi ideig hallgat (alapértelmezés: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>kiírja ezt a szöveget vagy a verziót</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Használat: %1 [KAPCSOLÓ]... [FÁJL]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>mint a szokásos nyomtatási parancsnál</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>A nyomtató nem tartja vissza a feladatot. Előbb kapcsolja be a „Visszatartás” lehetőséget.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>A gyors tároláshoz nem tartozik hozzáférési kód.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Csak egyéni mappához kell név. Előbb válassza az „Egyéni mappa” lehetőséget.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Csak egyéni vagy védett mappához tartozik hozzáférési kód.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Ez a nyomtató a felhasználószámról ismeri fel Önt, nem a bejelentkezési névről.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Ez az adat zárolva van, és a program megjegyezte ehhez a nyomtatóhoz. A módosításához nyissa ki a lakatot.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Számjegyek elrejtése</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Számjegyek megjelenítése</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Nyomtató kiválasztása</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Válasszon nyomtatót a listából. Ha a lista hosszú, írja be a nyomtató nevének egy részét, és nyomja meg az Entert. A lista alatti sor jelzi, hogy a nyomtató készen áll-e.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Néhány oldal nyomtatása</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Válassza a „Kijelölt oldalak” lehetőséget, és írja be az oldalszámokat vagy tartományokat, például 1-3, 5. A tartomány lehet nyitott: az 5- az 5. és minden további oldalt kinyomtatja.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Nyomtatás mindkét oldalra</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Válassza a „Hosszú él” lehetőséget, ha az oldalak könyvként lapozhatók, vagy a „Rövid él” lehetőséget, ha jegyzettömbként.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>A nyomtatás eredményének megtekintése</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Az előnézet úgy mutatja a papírlapokat, ahogy a nyomtatóból kijönnek. Lapozzon az alatta lévő nyilakkal vagy a Page Up és a Page Down billentyűvel, és nagyítsa az oldalakat a Ctrl billentyűvel és az egérgörgővel.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Az oldalak mentése PDF-fájlként</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Feladat visszatartása a nyomtatón hozzáférési kóddal</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>A „Feladatkezelés” alatt kapcsolja be a „Visszatartás” lehetőséget, és adjon meg egy legfeljebb 8 számjegyű hozzáférési kódot. A feladat a nyomtatóban várakozik, amíg valaki ott be nem írja a hozzáférési kódot. A „Visszatartás nyomtatás után” a nyomtatás után is megőrzi a feladatot. A „Próbanyomat” egy példányt nyomtat ki, a többit visszatartja.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>A felhasználó megadása</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Egyes nyomtatók megkérdezik, ki nyomtat. A „Felhasználó és fiók” alatt adja meg a felhasználószámát, vagy a bejelentkezési nevét és jelszavát.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Adat újbóli használata</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Zárja be az adat melletti lakatot. A program ekkor megjegyzi az adatot ehhez a nyomtatóhoz. A módosításához nyissa ki a lakatot.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Mappa kiválasztása a nyomtatón</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Beállítások mentése előbeállításként</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Nyomja meg az „Előbeállítások” gombot, és válassza a „Mentés előbeállításként” lehetőséget. Ha újra használni szeretné a beállításokat, válassza ki ott az előbeállítást. A hozzáférési kódok mentése csak akkor történik meg, ha belefoglalja őket.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Mit láthatnak mások egy feladatból</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Feladat megszakítása</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>A billentyűzet használata</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Az Alt és egy aláhúzott betű egy vezérlőhöz visz; az Alt, a Shift és a betű a mellette lévő lakathoz. Az Enter nyomtat, az Escape megszakít, az F1 megnyitja ezt a súgót. A Ctrl+R megmutatja a hozzáférési kód számjegyeit, amíg a kurzor benne áll.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Segítség a nyomtatáshoz</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Több oldal nyomtatása egy lapra</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>Az „Elrendezés” alatt válassza ki a laponkénti oldalak számát, sorrendjét és a szegélyt. Füzetkészítésre képes nyomtatón a „Füzet” úgy rendezi el az oldalakat, hogy az összehajtott lapok könyvként olvashatók.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Az oldalak igazítása a papírhoz</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>Az „Elrendezés” alatt a „Méretezés” határozza meg, mi történjen a papírnál nagyobb vagy kisebb oldalakkal. Az „Igazítás a papírhoz” egészben mutatja őket, a „Papír kitöltése” nem hagy margót, és levághatja a széleket, a „Tényleges méret” változatlanul hagyja őket. Az „Egyéni” százaléka képekre vonatkozik.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>A nyomtatás idejének kiválasztása</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>A „Feladat” alatt a „Nyomtatás” egy megadott időpontig tartja vissza a feladatot a nyomtatókiszolgálón, vagy a „Várakoztatva” választásával addig, amíg ki nem adja a rendszer nyomtatási feladatainak listájában. A várakozó feladatok közül a legmagasabb prioritású nyomtatódik ki először.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Borítólapok és számlázási információk hozzáadása</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>A „Feladat” alatt válasszon borítólapot, amely a dokumentum előtt vagy után nyomtatódik ki. A számlázási információkat, például egy projekt számát, a nyomtatókiszolgáló a feladattal együtt tárolja a nyilvántartásában.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>A nyomtató más beállításának megkeresése</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>A „További beállítások” a nyomtató összes többi beállítását tartalmazza. Írja be egy név részletét a szűrőbe, ha csak az azt tartalmazó beállításokat szeretné látni.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Válassza a nyomtatók listájában a „Mentés PDF-ként” lehetőséget, és nyomja meg a „Mentés” gombot. A fájl a kijelölt oldalakat tartalmazza. Csak PDF-dokumentumok menthetők, és csak az oldalaik és azok sorrendje választható meg.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Jelszóval védett dokumentum nyomtatása</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>A „Nyomtatás” gomb megnyomásakor az ablak kéri a dokumentum jelszavát. Egy jelszó nélküli másolatot nyomtat ki, amelyet csak Ön olvashat, és amely utána törlődik.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>A „Feladatkezelés” alatt kapcsolja be a „Visszatartás” lehetőséget. A „Dokumentumtárolás” alatt válassza az „Egyéni mappa” lehetőséget, és adja meg egy mappa nevét. A „Mappanevek lekérése” lekérdezi a nyomtató mappáit, hogy a listából választhasson.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Az összegzésben nyomja meg a „Ki láthatja ezt a feladatot?” gombot. A válasz megadja, hogy a nyomtatókiszolgáló a feladat mely részleteit mutatja meg más felhasználóknak, és hogyan rejtheti el őket.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Nyomja meg a „Mégse” gombot a feladat küldése közben. Amíg a párbeszédablak követi a feladatot, nyomja meg a „Feladat megszakítása” gombot; az „Újranyomtatás” még egyszer elküldi a sikertelen feladatot. A párbeszédablak bezárása után használja a rendszer nyomtatási feladatainak listáját.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Példányszám</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Leválogatás</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Fordított</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Oldalak</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Csak ezeket</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Papírméret</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Kétoldalas</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Szín</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Minőség</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papírforrás</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papírtípus</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Kimeneti tálca</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Tűzés</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lyukasztás</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Hajtogatás</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Tájolás</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Oldalak laponként</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Füzet</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Oldalsorrend</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Szegély</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Méretezés</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Nyomtatás</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioritás</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Számlázási információk</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Borítólapok</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Felbontás</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Hosszú él</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Rövid él</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Minden oldal</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Páratlan oldalak</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Páros oldalak</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatikus</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Álló</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Fekvő</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Fordított fekvő</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Fordított álló</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Balról jobbra, fentről le</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Balról jobbra, lentről fel</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Jobbról balra, fentről le</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Jobbról balra, lentről fel</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Fentről le, balról jobbra</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Fentről le, jobbról balra</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Lentről fel, balról jobbra</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Lentről fel, jobbról balra</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nincs</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Egyszeres vonal</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Vastag egyszeres vonal</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Kettős vonal</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Vastag kettős vonal</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Igazítás a papírhoz</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tényleges méret</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Papír kitöltése</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Most</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Várakoztatva</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Alacsony</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Közepes</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Magas</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Sürgős</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Szabványos</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Nem minősített</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Minősített</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Bizalmas</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Titkos</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Szigorúan titkos</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Egyéni %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Egyéni %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Ekkor: %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Kétoldalas nyomtatás nem lehetséges erre: %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 „%2” nem lehetséges ezzel: %3 „%4”.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Kétoldalas kikapcsolása</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1 beállítása erre: %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Oldalak: %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 példány</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n példány</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Adjon meg oldalszámokat vagy tartományokat, például 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>A dokumentum a(z) %1. oldalon véget ér. Legfeljebb %1 értékű oldalszámokat adjon meg.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Jelenlegi oldal</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Kijelölés</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Utómunka</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: ezt ez a nyomtató nem kínálja</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>ez a nyomtató nem kérdezi, ki nyomtat</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1: %2 lehet</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>legfeljebb %n számjegy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>legfeljebb %n karakter</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 nem használható a --folder quick kapcsolóval</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 csak a --folder NAME kapcsolóval használható</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 csak hozzáférési kódos vagy egyéni mappa --folder NAME kapcsolójával használható</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 nem használható felhasználószámmal együtt</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Hozzáférési kód</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>a visszatartott feladat hozzáférési kódja</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main vagy egy mappa neve</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Mappa kódja</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>mappa kódja</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>bejelentkezési név</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>a bejelentkezési név jelszava</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>felhasználószám bejelentkezés helyett</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>fiókszám</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>felhasználónév a nyomtatón</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>a feladat neve a nyomtatón</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>hiányzik a felhasználószám; adja meg ezzel: %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>hiányzik a bejelentkezési név; adja meg ezzel: %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p ugyanaz, mint -q, -w mint -m; a többi hatástalan</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>várakozási sor helyett, ha nem küld feladatot</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>kiírja a feladat beállításait, és semmit sem küld el; csak azt őrzi meg, amit a --remember, --forget vagy --save-preset kér</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>a panel összegzését írja ki a beállítások helyett</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>kiírja a várakozási sorokat vagy a feladatkezelést kínálókat, és a hálózat nyomtatóit</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>lekéri, megjegyzi és kiírja a nyomtató mappáit</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>megmutatja, mit látnak a kiszolgáló többi felhasználói egy feladat beállításaiból, és hogyan rejthető el</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>kiírja, mi történik a feladattal, amíg ki nem nyomtatódik vagy a nyomtató vissza nem tartja; egyébként a kilépési kód 1, vagy 4, ha SECONDS után is vár</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>JSON kiírása</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>a kiszolgáló vagy a nyomtató által kért jelszó</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>visszatartja a feladatot: kinyomtatás nélkül, kinyomtatás után vagy próbanyomat után</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>nem tartja vissza a feladatot</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>X (pin, folder-pin, password) egy fájl vagy a szabványos bemenet („-”) első sorából, vagy a terminálon bekérve: a parancssort más felhasználók is láthatják</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>megjegyzi az X adatokat a sor következő feladataihoz</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>többé nem jegyzi meg őket</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>a sor egyik előbeállításából indul ki</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>előbeállításként menti a beállításokat, a hozzáférési kódokat csak a --with-codes kapcsolóval</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>csak ezt teszi, -d vagy --ppd megadásával</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Fájlokat vagy a szabványos bemenetet nyomtatja ki a nyomtató feladatkezelésével.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Kilépési kód: 0 kész, 1 sikertelen, 2 hibás használat, 3 a panel elutasította, 4 várakozik.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>a várakozás véget ért: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>a hálózaton</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>készen áll</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>leállítva</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>nyomtat</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>nem fogad feladatokat</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 feladat</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n feladat</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>ennek a nyomtatónak nincs mappalistája</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>a nyomtató címe ismeretlen; adja meg ezzel: --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>„%1” nem cím</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: a többi felhasználó egy feladat semmilyen beállítását sem látja.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: a többi felhasználó ezt látja egy feladatból: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>A rendszergazda a cupsd.conf fájlban, a nyomtató házirendjében rejtheti el:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>A rendszergazda a cupsd.conf fájlban, a &lt;Policy %1&gt; részben rejtheti el:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>zárolva</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder hatástalan: ez a nyomtató nem tárol dokumentumokat</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>az adatok nem jegyezhetők meg: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>a feladat el lett küldve, de: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>a nyers (raw) feladat megkerüli az illesztőprogramot és vele a feladatkezelést</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>a(z) „%1” nyomtató nem kínál feladatkezelést</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m figyelmen kívül marad: új feladathoz való</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>figyelmeztetés: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i már elküldött feladatot módosít; hagyja el a fájlokat</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i a helyén módosít egy feladatot; hagyja el a -d és --ppd kapcsolót</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i nem módosíthatja egy már elküldött feladat feladatkezelését</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait csak nyomtatandó feladattal használható</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>a lista nem használható egy feladat beállításaival együtt</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>nincs megadva nyomtató; adja meg ezzel: -d vagy --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd csak a --dry-run vagy --folders kapcsolóval használható</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>a szabványos bemenetről csak egy adat olvasható</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>nem lehet üres</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>értéke 18:30 (UTC) alakú időpont, hold, immediate, resume, restart vagy a nyomtatókiszolgáló egy kulcsszava lehet, mint az evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>egy feladat lehet, például 12 vagy QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 figyelmen kívül marad: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>a CUPS nem ismer űrlapokat</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>a CUPS nem ismer módokat; használja ezt: -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>a karakterkészlet mindig UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>a nyomtatókiszolgáló felismeri a típust; használja ezt: -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember és --forget nem nevezheti meg egyszerre ezt: %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>ezek közül csak az egyik használható: -i, --dry-run, --list, --folders, --check, --list-presets és --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Hibás jelszó. %1 jelszava ehhez: %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>%1 jelszava ehhez: %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; adja meg ezzel: --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>%1. dokumentum küldése: %2 MiB, %3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>%1. dokumentum küldése: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>elküldött feladat módosítása: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>a fájlban lévő jelszó nem kerül elküldésre ide: „%1”; ez egy hálózati nyomtató, amely nincs beállítva a nyomtatókiszolgálón</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>„%1” nincs beállítva a nyomtatókiszolgálón; a hálózati nyomtató lesz használva: %2</translation>
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
        <translation>nincs elérhető nyomtató</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 nem írható</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>megnyitja ezt a szakaszt</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>elmenti a párbeszédablak képét, és kilép</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>kiírja, mennyi ideig tartott az indulás, és kilép</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>A nyomtatás párbeszédablakát jeleníti meg fájlokhoz vagy a szabványos bemenethez.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Kilépési kód: 0 elküldve, 1 nincs elküldve, 2 hibás használat.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Kapcsolódás</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Nyitott fedél</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Hiányzik az illesztőprogram</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Kifogyott az előhívó</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Kevés az előhívó</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Nyitott ajtó</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Túl meleg</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Bemelegítés</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Visszatartja az új feladatokat</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Hiányzik a papírtálca</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Kifogyott a tinta vagy a festék</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Kevés a tinta vagy a festék</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Majdnem megtelt a hulladékfesték-gyűjtő</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Megtelt a hulladékfesték-gyűjtő</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Kifogyott a papír</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papírelakadás</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Kevés a papír</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Papír szükséges</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Szüneteltetés folyamatban</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Elhasználódott a dob</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Majdnem elhasználódott a dob</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Beavatkozást igényel</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Majdnem megtelt a kimeneti tálca</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Megtelt a kimeneti tálca</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Hiányzik a kimeneti tálca</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Kikapcsolva</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Megtelt a nyomtató memóriája</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Részben leállítva</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Leállítás folyamatban</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Nem válaszol</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Kifogyott a festék</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Kevés a festék</translation>
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
        <translation>Fél US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Levelezőlap (japán)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Dupla levelezőlap (japán)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Monarch boríték</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>%1 boríték</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>%1. számú boríték</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatikus</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Fő tálca</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Másodlagos tálca</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Kazetta</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>%1. kazetta</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>%1. tálca</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Kézi adagolás</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Többcélú tálca</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Borítékadagoló</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Kézi borítékadagolás</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Nagy kapacitású tálca</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Felső tálca</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Középső tálca</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Alsó tálca</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bal oldali tálca</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Jobb oldali tálca</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Oldalsó tálca</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Hátsó tálca</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Központi tálca</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotótálca</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Lemeztálca</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Levelezőlaptálca</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Papírtekercs</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Másodlagos papírtekercs</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>%1. tekercs</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Normál papír</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Fejléces papír</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Előnyomott papír</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Lyukasztott papír</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Újrahasznosított papír</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bankpostapapír</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Vastag papír</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Vékony papír</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Bevonatos papír</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Tintasugaras papír</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Finompapír</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Színes papír</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Pamutpapír</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Írásvetítő-fólia</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Boríték</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Címkék</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotópapír</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Fényes fotópapír</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Magasfényű fotópapír</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Félfényes fotópapír</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Szatén fotópapír</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Matt fotópapír</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Folyamatos papír</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Regiszterpapír</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Lemez</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Felső kimeneti tálca</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Középső kimeneti tálca</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Alsó kimeneti tálca</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Bal oldali kimeneti tálca</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Jobb oldali kimeneti tálca</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Központi kimeneti tálca</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Oldalsó kimeneti tálca</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Hátsó kimeneti tálca</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Nyomtatott oldalával felfelé</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Nyomtatott oldalával lefelé</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>%1. lerakó</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Lerakó</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>%1. postafiók</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Saját postafiók</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Színes</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Fekete-fehér</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Csak fekete, szürke nélkül</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Vázlat</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normál</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Magas</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nincs</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Tűzés</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Két kapocs</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Három kapocs</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Éltűzés</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Gerinctűzés</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Füzet</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lyukasztás</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Két lyuk</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Három lyuk</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Négy lyuk</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Sok lyuk</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Kötés</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Körülvágás</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Borító hozzáadása</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Feladatok eltolása</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminálás</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Hajtogatás</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Félbehajtás</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Levélhajtás</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z-hajtás</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Fél Z-hajtás</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Harmonikahajtás</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Ablakhajtás</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Kettős ablakhajtás</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Párhuzamos hajtás</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>bal felül</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>bal alul</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>jobb felül</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>jobb alul</translation>
    </message>
    <message>
        <source>left</source>
        <translation>bal oldalon</translation>
    </message>
    <message>
        <source>top</source>
        <translation>felül</translation>
    </message>
    <message>
        <source>right</source>
        <translation>jobb oldalon</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alul</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, margó nélkül</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Borítólap elöl</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Borítólap hátul</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Jelszó szükséges</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>%1 nyomtató a jelszavát kéri.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>%1 nyomtatókiszolgáló a jelszavát kéri.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Hibás felhasználónév vagy jelszó. Próbálja újra.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Tartomány:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Felhasználónév:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Jelszó:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Feladat küldése</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Nyomtatás</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 nem olvasható: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 egy mappa. Válasszon fájlt.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 nagyobb ennél: %2. Ennél több nem nyomtatható.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 nem másolható a nyomtatáshoz: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 üres. Nincs mit nyomtatni.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>A dokumentum</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 és még %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>A dokumentumnak nincsenek oldalai. Nincs mit nyomtatni.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Nincs előnézet. A megtekintéséhez telepítse a cups csomagot.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Nincs előnézet, mert a dokumentum átalakítása túl sokáig tart.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Ehhez a dokumentumtípushoz nincs előnézet.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>A dokumentumot jelszó védi. A nyomtatásához adja meg a jelszót.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>A dokumentum sérült, és nem jeleníthető meg. Előfordulhat, hogy a nyomtató nem tudja kinyomtatni.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>A dokumentum sérült. Egy része hiányozhat.</translation>
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
        <translation>Kiválasztás…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Dokumentum kiválasztása</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>A dokumentum nem nyitható meg. A megnyitásához telepítse a qpdf csomagot.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>A dokumentum megnyitása túl sokáig tart.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Nincs elég hely a dokumentum másolatához.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>A dokumentum sérült, és nem nyitható meg.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Hibás jelszó. Még egyszer próbálkozhat.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Hibás jelszó. Még %n alkalommal próbálkozhat.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>%1 nyomtatókiszolgáló keresése túl sokáig tartott</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>nincs %1 nevű nyomtatókiszolgáló</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>nem lehet titkosítva kapcsolódni a nyomtatókiszolgálóhoz: %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>nem lehet kapcsolódni a nyomtatókiszolgálóhoz: %1. Fut a kiszolgáló?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>%1 nyomtatókiszolgáló abbahagyta a dokumentum olvasását</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>a nyomtatókiszolgáló válasza hiányos</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>a nyomtatókiszolgáló válasza túl nagy</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>%1 nyomtatókiszolgáló nem válaszolt %2 s alatt</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>%1 nyomtatókiszolgáló bontotta a kapcsolatot</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>%1 nyomtatókiszolgáló másik címre irányított át (HTTP-állapot: %2); az átirányításokat a program nem követi</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>%1 nyomtatókiszolgáló jelszót kér</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>%1 nyomtatókiszolgáló válasza: %2 (HTTP-állapot: %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>a nyomtatókiszolgáló válasza nem olvasható</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>a feladat beállításai</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>a felhasználónév</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>a feladat neve</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>a hozzáférési kód kivonata</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>a hozzáférési kód</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>a feladat időpontja</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>a mappa hozzáférési kódja</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>a mappa</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>a felhasználószám</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>a fiókszám</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>a nyomtatókiszolgáló nem adott számot a feladatnak</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>nem hozható létre feladat ezen: „%1”: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>nem szakítható meg a feladat: %1-%2: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>a nyomtatókiszolgáló válasza nem tartalmazza a feladatot</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>nem állapítható meg, mit látnak a többi felhasználók: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: %2. sor: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>%1 PPD-fájlja nem kérhető le: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>a PPD-fájl nem menthető: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>%1 PPD-fájlja túl nagy</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>a szabványos bemenet nem olvasható</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: mappa</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>a feladat leállt</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>a nyomtatókiszolgáló leállította a feladatot: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>ez a nyomtató nem fogad ilyen típusú fájlt</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>ez a nyomtató nem fogad ilyen típusú fájlt (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>%1 nem nyomtatható ki: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>a nyomtatókiszolgáló elutasította a feladatot: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>„%1” nem fogad feladatokat</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>„%1” nem fogad feladatokat: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>nincs „%1” nevű nyomtató</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>a(z) „%1” nyomtató nem nyitható meg: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>a „Feladatkezelés” bővítménynek nincs panelje a nyomtatási ablakhoz</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>a panelnek nincs elrendezése</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>a nyomtató válasza nem írható az ideiglenes mappába. Megtelt a lemez?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>a nyomtató válasza nem mappalista</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>a JobHandling.pde nem található sem a program mellett, sem a programkönyvtárak mappájában</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>a mappák nem jegyezhetők meg: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Feladatkezelés ehhez a típushoz: %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>még nem történt nyomtatás</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>az előbeállítás nem tudja tárolni ennek a mappának a nevét</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>nincs „%1” előbeállítás; ennek a nyomtatónak nincsenek előbeállításai</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>nincs „%1” előbeállítás; ennek a nyomtatónak az előbeállításai: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>a(z) „%1” előbeállítás sérült, és változatlan maradt</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>a nyomtató előbeállításai sérültek, és változatlanok maradtak</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>az előbeállítás neve legfeljebb %1 karakter lehet; válasszon rövidebbet</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>a nyomtató előbeállításai nem olvashatók: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>a(z) „%1” előbeállítás egy másik nyomtatótípushoz tartozik: %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>a nyomtatókiszolgáló már nem ismeri a feladatot</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>nem szakítható meg a feladat: %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>hibás felhasználónév vagy jelszó a(z) „%1” nyomtatóhoz</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>hibás felhasználónév vagy jelszó a nyomtatókiszolgálóhoz: %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>a(z) „%1” nyomtató jelszót kér</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>a(z) „%1” nyomtató nem állítható be: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>a nyomtató nem válaszol</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>a cím ismeretlen</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>a kapcsolat elutasítva</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>a kapcsolat megszakadt</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>nem érkezett időben válasz</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>a válasz nem olvasható</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>a nyomtató nem érhető el</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>nincs mappalista innen: %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: mappa, nem PPD-fájl</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>nincs alapértelmezett nyomtató; válasszon egyet ezzel: -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>másik nyomtatóhoz tartozik</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>nem indítható újra a feladat: %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>nem módosítható a feladat: %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Ekkor</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Adjon meg egy időpontot, például 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Várakozás a nyomtatóra</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Várakozás 1 másik feladatra</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Várakozás %n másik feladatra</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Visszatartva: a nyomtató jelszót kér</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Visszatartva a nyomtatás időpontjáig</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Visszatartva a kiadásig</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Nyomtat</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>%1. oldal nyomtatása</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Oldal nyomtatása: %1 / %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Leállítva: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Leállítva: a nyomtató szünetel</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Leállítva</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Várakozik itt: %1, amíg ott meg nem adja a hozzáférési kódot</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Várakozik itt: %1, amíg ott ki nem adja</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Kinyomtatva</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Kinyomtatva, és újranyomtatáshoz megőrizve itt: %1</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Egy példány kinyomtatva, a többi várakozik itt: %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Megszakította: %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Megszakítva a nyomtatón</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Megszakítva</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>A nyomtatókiszolgáló leállította</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Nem lett kinyomtatva</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Nem tudni, hogy a feladat ki lett-e nyomtatva</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Csatlakozás a nyomtatóhoz</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Elrendezés</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Feladat</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>További beállítások</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrés</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>A PDF-fájlban az oldalak változatlanok maradnak. Csak az oldalak és a sorrendjük választható meg.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Nincs előnézet, mert az oldal kirajzolása túl sokáig tart.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Ehhez a dokumentumtípushoz nincs előnézet.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Nincs előnézet. A megtekintéséhez telepítse a poppler-utils csomagot.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Nincs előnézet, mert ez a PDF-dokumentum nem olvasható.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Előző oldal</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Következő oldal</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Oldal</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Minden oldal</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Kijelölt oldalak</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>A dokumentum a(z) %1. oldalon véget ér. Nyomtatandó oldalak: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Zárolás: %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Adja meg a nyomtató címét a mappanevek lekéréséhez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>„%1” nem cím. Adja meg a nyomtató nevét vagy IP-címét.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Ez a nyomtató nem tárol dokumentumokat, ezért a mappa kiválasztásának nincs hatása.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Zárolva: a program megjegyezte ezt az adatot ehhez a nyomtatóhoz.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Feloldva: ez az adat csak erre a feladatra vonatkozik.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Szélesség</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Magasság</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>hüvelyk</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Egyéni méret</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Adjon meg egy szélességet %1 és %2 %3 között.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Adjon meg egy magasságot %1 és %2 %3 között.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Védett dokumentum</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 jelszóval védett. A dokumentum nyomtatásához adja meg a jelszót.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>A dokumentum</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Nincsenek kijelölt oldalak.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>PDF-fájlok mentéséhez telepítse a qpdf csomagot.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>A mentés túl sokáig tart.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Nincs elég hely.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Leállítva.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 nem menthető. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Százalék</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Egyéni</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Adjon meg egy százalékértéket %1 és %2 között.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Előbeállítások</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Legutóbb használt</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Nincsenek előbeállítások</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Mentés előbeállításként…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Előbeállítás törlése</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (módosítva)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Előbeállítások: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Mentés előbeállításként</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Hozzáférési kódok belefoglalása</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Név:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Lecseréli a(z) „%1” előbeállítást?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>PDF-ként csak PDF-dokumentumok menthetők.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Nincsenek kijelölt oldalak.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Oldal: %1 / %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Lap: %1 / %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Lap: %1 / %2, előoldal</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Lap: %1 / %2, hátoldal</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 oldal</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n oldal</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Összesen: 1 papírlap</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Összesen: %n papírlap</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Kapcsolódás a nyomtatóhoz…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>A kijelölt oldalakat fájlba menti.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Nyomtatás</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Ez a nyomtató nem támogatja ezt: %1. A feladat enélkül lesz kinyomtatva.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Mentés PDF-ként</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Nyomtatás ide: %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Nincs kiválasztott dokumentum</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Dokumentum olvasása…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>A dokumentum hosszú. A többi részét a program nyomtatáskor olvassa be.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Nincs előnézet. Az alkalmazás a „Nyomtatás” gomb megnyomása után készíti el az oldalakat.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Nincs dokumentum</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Dokumentum kiválasztása</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-dokumentumok (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>%1. feladat elküldve ide: %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Mentve mint %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>A feladat nem lett kinyomtatva. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Mentés…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Válassza ki a nyomtatandó dokumentumot.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Feladat megszakítása…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Nyomtató:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Dokumentum:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Ez a nyomtató nem támogatja ezt az előbeállításból: %1. A többi be van állítva.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Nincs visszatartva</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>%1. feladat: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Az adatait nem sikerült megjegyezni.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Újranyomtatás</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Feladat megszakítása</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Megjelenítés</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 mappa innen: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n mappa innen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>A nyomtatókiszolgálón már nincs meg ez a nyomtató. Lehet, hogy eltávolították.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Nyomtató</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Név:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Leírás:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Típus:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Hely:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Üzenet:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Ismeretlen szint</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Nyomtató</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Újrapróbálás</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Nincs nyomtató</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Nyomtatók keresése…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Adja meg egy nyomtató nevét.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Nyomja meg az Entert a kiválasztásához: %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Több nyomtató is megfelel. Válasszon közülük.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Nincs „%1” nevű nyomtató.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Részletek</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Nyomtató részletei</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Mentés PDF-ként</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Nem fogad feladatokat: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nem fogad feladatokat</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Szüneteltetve: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Nyomtat</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Készen áll</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 feladat várakozik</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n feladat várakozik</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>A hálózaton</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Egyetlen nyomtató sem fogad feladatokat. Ellenőrizze a nyomtatókat a rendszerbeállításokban, majd próbálja újra.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Előnézet</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Ki láthatja ezt a feladatot?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Más felhasználók láthatják, hogy ez a feladat létezik, de a részleteit nem.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Más felhasználók ezt láthatják: %1. Az elrejtéséhez vegye fel ezeket a sorokat a nyomtatókiszolgáló „%2” házirendjébe:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (módosítva)</translation>
    </message>
</context>
</TS>
