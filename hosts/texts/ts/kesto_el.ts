<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>πρέπει να είναι %1 ή %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>μη αναμενόμενο όρισμα</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>άγνωστη επιλογή %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>το %1 απαιτεί μια τιμή</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>το %1 δεν δέχεται τιμή</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>το %1 δεν μπορεί να χρησιμοποιηθεί με το %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Δοκιμάστε «%1 --help».</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>το %1 απαιτεί το %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>δεν είναι δυνατή η εγγραφή στην τυπική έξοδο</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>η γραμμή είναι πολύ μεγάλη</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>η γραμμή δεν είναι σε UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>η γραμμή είναι κενή</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>δεν υπάρχει τερματικό για την ερώτηση</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>διακόπηκε</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>πρέπει να είναι από 0.1 έως 3600 δευτερόλεπτα</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>τα αντίγραφα πρέπει να είναι από %1 έως %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>η προτεραιότητα πρέπει να είναι από %1 έως %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>τα δευτερόλεπτα πρέπει να είναι από %1 έως %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>το %1 δίνεται δύο φορές</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>εγκατάλειψη αν ο διακομιστής σιωπά τόση ώρα (προεπιλογή: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>εμφάνιση αυτού του κειμένου ή της έκδοσης</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Χρήση: %1 [ΕΠΙΛΟΓΗ]... [ΑΡΧΕΙΟ]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>όπως στη συνήθη εντολή εκτύπωσης</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>Η εργασία δεν παραμένει σε αναμονή στον εκτυπωτή. Ενεργοποιήστε πρώτα το «Κράτηση».</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Η γρήγορη αρχειοθέτηση δεν έχει PIN.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Μόνο ένας προσαρμοσμένος φάκελος χρειάζεται όνομα. Επιλέξτε πρώτα «Προσαρμοσμένος φάκελος».</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Μόνο ένας προσαρμοσμένος ή προστατευμένος φάκελος έχει PIN.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Αυτός ο εκτυπωτής σας αναγνωρίζει από τον αριθμό χρήστη και όχι από το όνομα σύνδεσης.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Αυτή η τιμή είναι κλειδωμένη και αποθηκευμένη για αυτόν τον εκτυπωτή. Ανοίξτε το λουκέτο για να την αλλάξετε.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Απόκρυψη των ψηφίων</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Εμφάνιση των ψηφίων</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Επιλογή εκτυπωτή</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Επιλέξτε έναν εκτυπωτή από τη λίστα. Αν η λίστα είναι μεγάλη, πληκτρολογήστε ένα μέρος του ονόματος του εκτυπωτή και πατήστε Enter. Η γραμμή κάτω από τη λίστα δείχνει αν ο εκτυπωτής είναι έτοιμος.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Εκτύπωση μερικών σελίδων</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Επιλέξτε «Επιλεγμένες σελίδες» και πληκτρολογήστε αριθμούς ή εύρη σελίδων, για παράδειγμα 1-3, 5. Ένα εύρος μπορεί να είναι ανοιχτό: το 5- εκτυπώνει τη σελίδα 5 και όλες τις επόμενες.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Εκτύπωση και στις δύο όψεις</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Επιλέξτε «Μεγάλη πλευρά» για σελίδες που γυρίζουν όπως σε βιβλίο ή «Μικρή πλευρά» για σελίδες που γυρίζουν όπως σε σημειωματάριο.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Προβολή του τι θα εκτυπωθεί</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>Η προεπισκόπηση δείχνει τα φύλλα χαρτιού όπως θα βγουν από τον εκτυπωτή. Γυρίστε τις σελίδες με τα βέλη κάτω από αυτήν ή με τα Page Up και Page Down και μεγεθύνετέ τες με το Ctrl και τον τροχό του ποντικιού.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Αποθήκευση των σελίδων ως αρχείου PDF</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Κράτηση εργασίας στον εκτυπωτή με PIN</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>Στην ενότητα «Διαχείριση εργασιών», ενεργοποιήστε το «Κράτηση» και πληκτρολογήστε ένα PIN έως 8 ψηφίων. Η εργασία περιμένει στον εκτυπωτή ώσπου κάποιος να πληκτρολογήσει εκεί το PIN. Η «Κράτηση μετά την εκτύπωση» διατηρεί την εργασία αφού εκτυπωθεί. Το «Δείγμα εκτύπωσης» εκτυπώνει ένα αντίγραφο και κρατά τα υπόλοιπα.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Δήλωση ταυτότητας</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Ορισμένοι εκτυπωτές ρωτούν ποιος εκτυπώνει. Στην ενότητα «Χρήστης και λογαριασμός», πληκτρολογήστε τον αριθμό χρήστη ή το όνομα σύνδεσης και τον κωδικό πρόσβασής σας.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Επαναχρησιμοποίηση τιμής</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Κλείστε το λουκέτο δίπλα σε μια τιμή. Η τιμή αποθηκεύεται τότε για αυτόν τον εκτυπωτή. Για να την αλλάξετε, ανοίξτε το λουκέτο.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Επιλογή φακέλου στον εκτυπωτή</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Αποθήκευση των ρυθμίσεων ως προρύθμισης</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Πατήστε «Προρυθμίσεις» και επιλέξτε «Αποθήκευση ως προρύθμιση». Για να χρησιμοποιήσετε ξανά τις ρυθμίσεις, επιλέξτε εκεί την προρύθμιση. Τα PIN αποθηκεύονται μόνο αν τα συμπεριλάβετε.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Τι βλέπουν οι άλλοι από μια εργασία</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Ακύρωση εργασίας</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Χρήση του πληκτρολογίου</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Το Alt και ένα υπογραμμισμένο γράμμα οδηγούν σε ένα στοιχείο· τα Alt, Shift και το γράμμα οδηγούν στο λουκέτο δίπλα του. Το Enter εκτυπώνει, το Escape ακυρώνει και το F1 ανοίγει αυτή τη βοήθεια. Το Ctrl+R εμφανίζει τα ψηφία ενός PIN όσο ο δρομέας βρίσκεται σε αυτό.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Βοήθεια για την εκτύπωση</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Εκτύπωση πολλών σελίδων σε ένα φύλλο</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>Στην ενότητα «Διάταξη», επιλέξτε το πλήθος των σελίδων ανά φύλλο, τη σειρά τους και ένα περίγραμμα. Σε εκτυπωτή που φτιάχνει φυλλάδια, το «Φυλλάδιο» διατάσσει τις σελίδες ώστε τα διπλωμένα φύλλα να διαβάζονται σαν βιβλίο.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Προσαρμογή των σελίδων στο χαρτί</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>Στην ενότητα «Διάταξη», η «Κλίμακα» ορίζει τι γίνεται με σελίδες μεγαλύτερες ή μικρότερες από το χαρτί. Η «Προσαρμογή στο χαρτί» τις δείχνει ολόκληρες, το «Γέμισμα του χαρτιού» δεν αφήνει περιθώριο και μπορεί να κόψει τις άκρες, και το «Πραγματικό μέγεθος» τις αφήνει όπως είναι. Το ποσοστό στο «Προσαρμοσμένη» ισχύει για εικόνες.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Επιλογή του χρόνου εκτύπωσης</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>Στην ενότητα «Εργασία», η «Εκτύπωση» κρατά την εργασία στον διακομιστή εκτύπωσης έως μια ώρα ή, με το «Σε αναμονή», ώσπου να την αποδεσμεύσετε στη λίστα εργασιών εκτύπωσης του συστήματος. Από τις εργασίες που περιμένουν, πρώτη εκτυπώνεται αυτή με την υψηλότερη προτεραιότητα.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Προσθήκη εξωφύλλων και πληροφοριών χρέωσης</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>Στην ενότητα «Εργασία», επιλέξτε ένα εξώφυλλο που εκτυπώνεται πριν ή μετά το έγγραφο. Οι πληροφορίες χρέωσης, όπως ο αριθμός ενός έργου, διατηρούνται μαζί με την εργασία στα αρχεία του διακομιστή εκτύπωσης.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Εύρεση άλλης επιλογής του εκτυπωτή</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>Οι «Περισσότερες επιλογές» περιέχουν όλες τις άλλες επιλογές του εκτυπωτή. Πληκτρολογήστε ένα μέρος ενός ονόματος στο φίλτρο για να βλέπετε μόνο τις επιλογές που το περιέχουν.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Επιλέξτε «Αποθήκευση ως PDF» στη λίστα εκτυπωτών και πατήστε «Αποθήκευση». Το αρχείο περιέχει τις σελίδες που επιλέξατε. Αποθηκεύονται μόνο έγγραφα PDF και μπορείτε να επιλέξετε μόνο τις σελίδες τους και τη σειρά τους.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Εκτύπωση εγγράφου που προστατεύεται με κωδικό πρόσβασης</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Όταν πατάτε «Εκτύπωση», ο διάλογος ζητά τον κωδικό πρόσβασης του εγγράφου. Εκτυπώνει ένα αντίγραφο χωρίς κωδικό, που μόνο εσείς μπορείτε να διαβάσετε και που διαγράφεται στη συνέχεια.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>Στην ενότητα «Διαχείριση εργασιών», ενεργοποιήστε το «Κράτηση». Στην ενότητα «Αρχειοθέτηση εγγράφων», επιλέξτε «Προσαρμοσμένος φάκελος» και πληκτρολογήστε το όνομα ενός φακέλου. Η «Λήψη ονομάτων φακέλων» ρωτά τον εκτυπωτή για τους φακέλους του, ώστε να επιλέξετε έναν από τη λίστα.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>Στη σύνοψη, πατήστε «Ποιος βλέπει αυτή την εργασία;». Η απάντηση δείχνει ποιες λεπτομέρειες μιας εργασίας εμφανίζει ο διακομιστής εκτύπωσης σε άλλους χρήστες και πώς να τις αποκρύψετε.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Πατήστε «Ακύρωση» κατά την αποστολή της εργασίας. Όσο το παράθυρο παρακολουθεί την εργασία, πατήστε «Ακύρωση εργασίας»· η «Εκτύπωση ξανά» στέλνει άλλη μία φορά μια εργασία που απέτυχε. Αφού κλείσει το παράθυρο, χρησιμοποιήστε τη λίστα εργασιών εκτύπωσης του συστήματος.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Αντίγραφα</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Ταξινόμηση</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Αντίστροφα</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Σελίδες</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Εκτύπωση μόνο</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Μέγεθος χαρτιού</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Διπλής όψης</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Χρώμα</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Ποιότητα</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Πηγή χαρτιού</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Τύπος χαρτιού</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Συρραφή</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Διάτρηση</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Δίπλωση</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Προσανατολισμός</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Σελίδες ανά φύλλο</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Φυλλάδιο</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Σειρά σελίδων</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Περίγραμμα</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Κλίμακα</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Εκτύπωση</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Προτεραιότητα</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Πληροφορίες χρέωσης</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Εξώφυλλα</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Ανάλυση</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Μεγάλη πλευρά</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Μικρή πλευρά</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ναι</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Όλες οι σελίδες</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Μονές σελίδες</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Ζυγές σελίδες</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Αυτόματα</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Κατακόρυφα</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Οριζόντια</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Αντίστροφα οριζόντια</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Αντίστροφα κατακόρυφα</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Αριστερά προς δεξιά, πάνω προς κάτω</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Αριστερά προς δεξιά, κάτω προς πάνω</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Δεξιά προς αριστερά, πάνω προς κάτω</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Δεξιά προς αριστερά, κάτω προς πάνω</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Πάνω προς κάτω, αριστερά προς δεξιά</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Πάνω προς κάτω, δεξιά προς αριστερά</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Κάτω προς πάνω, αριστερά προς δεξιά</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Κάτω προς πάνω, δεξιά προς αριστερά</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Κανένα</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Μονή γραμμή</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Παχιά μονή γραμμή</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Διπλή γραμμή</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Παχιά διπλή γραμμή</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Προσαρμογή στο χαρτί</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Πραγματικό μέγεθος</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Γέμισμα του χαρτιού</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Τώρα</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Σε αναμονή</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Χαμηλή</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Μεσαία</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Υψηλή</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Επείγουσα</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Τυπικό</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Αδιαβάθμητο</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Διαβαθμισμένο</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Εμπιστευτικό</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Απόρρητο</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Άκρως απόρρητο</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Προσαρμοσμένο %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Προσαρμοσμένο %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Στις %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Η εκτύπωση διπλής όψης δεν είναι δυνατή σε: %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 «%2» δεν είναι δυνατό μαζί με %3 «%4».</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Απενεργοποίηση διπλής όψης</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Ορισμός %1 σε %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Σελίδες %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 αντίγραφο</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n αντίγραφο</numerusform>
            <numerusform>%n αντίγραφα</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Πληκτρολογήστε αριθμούς ή εύρη σελίδων, για παράδειγμα 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>Το έγγραφο τελειώνει στη σελίδα %1. Πληκτρολογήστε αριθμούς σελίδων έως %1.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Τρέχουσα σελίδα</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Επιλογή</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Φινίρισμα</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: αυτός ο εκτυπωτής δεν το προσφέρει</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>αυτός ο εκτυπωτής δεν ρωτά ποιος εκτυπώνει</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>το %1 πρέπει να έχει %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>το πολύ %n ψηφίο</numerusform>
            <numerusform>το πολύ %n ψηφία</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>το πολύ %n χαρακτήρα</numerusform>
            <numerusform>το πολύ %n χαρακτήρες</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>το %1 δεν μπορεί να χρησιμοποιηθεί με το --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>το %1 απαιτεί το --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>το %1 απαιτεί το --folder NAME ενός φακέλου με PIN ή ενός προσαρμοσμένου φακέλου</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>το %1 δεν μπορεί να χρησιμοποιηθεί με αριθμό χρήστη</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>PIN της εργασίας σε κράτηση</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main ή όνομα φακέλου</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>PIN φακέλου</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>PIN φακέλου</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>όνομα σύνδεσης</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Κωδικός πρόσβασης</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>κωδικός πρόσβασης του ονόματος σύνδεσης</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>αριθμός χρήστη αντί για σύνδεση</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>αριθμός λογαριασμού</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>όνομα χρήστη στον εκτυπωτή</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>όνομα εργασίας στον εκτυπωτή</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>λείπει ο αριθμός χρήστη· δώστε τον με το %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>λείπει το όνομα σύνδεσης· δώστε το με το %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>το -p είναι -q και το -w είναι -m· τα υπόλοιπα δεν έχουν αποτέλεσμα</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>στη θέση μιας ουράς, όταν δεν στέλνεται εργασία</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>εμφάνιση των ρυθμίσεων της εργασίας χωρίς αποστολή· αποθηκεύεται μόνο ό,τι ζητούν τα --remember, --forget ή --save-preset</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>εμφάνιση της σύνοψης του πίνακα και όχι των ρυθμίσεων</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>λίστα των ουρών, ή όσων προσφέρουν διαχείριση εργασιών, και των εκτυπωτών στο δίκτυο</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>λήψη, αποθήκευση και λίστα των φακέλων του εκτυπωτή</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>εμφάνιση του τι βλέπουν οι άλλοι χρήστες του διακομιστή από τις επιλογές μιας εργασίας και πώς αποκρύπτεται</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>εμφάνιση της πορείας της εργασίας μέχρι να εκτυπωθεί ή να κρατηθεί στον εκτυπωτή· αλλιώς τερματίζει με 1, ή με 4 αν περιμένει ακόμη μετά από SECONDS</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>εμφάνιση JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>ο κωδικός πρόσβασης που ζητά ο διακομιστής ή ο εκτυπωτής</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>κράτηση της εργασίας: χωρίς εκτύπωση, μετά την εκτύπωση ή μετά από ένα δείγμα</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>χωρίς κράτηση της εργασίας</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>λήψη του X (pin, folder-pin, password) από την πρώτη γραμμή ενός αρχείου ή της τυπικής εισόδου, «-», ή ερώτηση στο τερματικό: άλλοι χρήστες ίσως βλέπουν μια γραμμή εντολών</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>αποθήκευση των τιμών X για τις επόμενες εργασίες της ουράς</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>παύση της αποθήκευσής τους</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>έναρξη από μια προρύθμιση της ουράς</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>αποθήκευση των ρυθμίσεων ως προρύθμισης· των PIN μόνο μαζί με --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>μόνο αυτό, για -d ή --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Εκτυπώνει αρχεία ή την τυπική είσοδο με τη διαχείριση εργασιών ενός εκτυπωτή.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Τερματίζει με 0 ολοκλήρωση, 1 αποτυχία, 2 λανθασμένη χρήση, 3 άρνηση του πίνακα, 4 αναμονή.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>τέλος της αναμονής: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>στο δίκτυο</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>έτοιμος</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>σταματημένος</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>εκτυπώνει</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>δεν δέχεται εργασίες</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 εργασία</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n εργασία</numerusform>
            <numerusform>%n εργασίες</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>αυτός ο εκτυπωτής δεν έχει λίστα φακέλων</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>η διεύθυνση του εκτυπωτή είναι άγνωστη· δώστε την με το --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>το «%1» δεν είναι διεύθυνση</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: οι άλλοι χρήστες δεν βλέπουν καμία επιλογή μιας εργασίας.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: οι άλλοι χρήστες βλέπουν από μια εργασία: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Ένας διαχειριστής τα αποκρύπτει στο cupsd.conf, στην πολιτική του εκτυπωτή:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Ένας διαχειριστής τα αποκρύπτει στο cupsd.conf, στο &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>κλειδωμένος</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>το --folder δεν έχει αποτέλεσμα: αυτός ο εκτυπωτής δεν αρχειοθετεί έγγραφα</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>δεν είναι δυνατή η αποθήκευση των τιμών: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>η εργασία στάλθηκε, αλλά: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>μια ανεπεξέργαστη εργασία (raw) παρακάμπτει το πρόγραμμα οδήγησης και μαζί τη διαχείριση εργασιών</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>ο εκτυπωτής «%1» δεν προσφέρει διαχείριση εργασιών</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>το -m αγνοείται: αφορά νέα εργασία</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>προειδοποίηση: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>το -i αλλάζει μια εργασία που έχει ήδη σταλεί· παραλείψτε τα αρχεία</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>το -i αλλάζει μια εργασία εκεί όπου βρίσκεται· παραλείψτε τα -d και --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>το -i δεν μπορεί να αλλάξει τη διαχείριση μιας εργασίας που έχει ήδη σταλεί</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>το --wait απαιτεί μια εργασία προς εκτύπωση</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>μια λίστα δεν μπορεί να συνδυαστεί με επιλογές εργασίας</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>δεν δόθηκε εκτυπωτής· επιλέξτε τον με -d ή --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>το --ppd απαιτεί --dry-run ή --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>μόνο μία τιμή μπορεί να διαβαστεί από την τυπική είσοδο</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>δεν πρέπει να είναι κενό</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>πρέπει να είναι ώρα όπως 18:30 (UTC), hold, immediate, resume, restart ή λέξη-κλειδί του διακομιστή εκτύπωσης όπως evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>πρέπει να είναι εργασία όπως 12 ή QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>το %1 αγνοείται: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>το CUPS δεν έχει φόρμες</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>το CUPS δεν έχει λειτουργίες· χρησιμοποιήστε το -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>το σύνολο χαρακτήρων είναι πάντα UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>ο διακομιστής εκτύπωσης αναγνωρίζει τον τύπο· χρησιμοποιήστε -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>τα --remember και --forget δεν μπορούν να αναφέρουν και τα δύο το %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>χρησιμοποιήστε μόνο ένα από τα -i, --dry-run, --list, --folders, --check, --list-presets και --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Λάθος κωδικός πρόσβασης. Κωδικός πρόσβασης του %1 για %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Κωδικός πρόσβασης του %1 για %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1· δώστε τον με το --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>αποστολή του εγγράφου %1: %2 MiB, %3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>αποστολή του εγγράφου %1: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>αλλαγή εργασίας που έχει σταλεί: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>ο κωδικός πρόσβασης του αρχείου δεν αποστέλλεται στον «%1», που είναι εκτυπωτής στο δίκτυο και δεν έχει ρυθμιστεί στον διακομιστή εκτύπωσης</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>ο «%1» δεν έχει ρυθμιστεί στον διακομιστή εκτύπωσης· χρησιμοποιείται ο εκτυπωτής στο δίκτυο: %2</translation>
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
        <translation>δεν υπάρχει διαθέσιμος εκτυπωτής</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>δεν είναι δυνατή η εγγραφή του %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>άνοιγμα αυτής της ενότητας</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>αποθήκευση εικόνας του παραθύρου και έξοδος</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>εμφάνιση της διάρκειας της εκκίνησης και έξοδος</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Εμφανίζει το παράθυρο εκτύπωσης για αρχεία ή για την τυπική είσοδο.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Τερματίζει με 0 αποστολή, 1 καμία αποστολή, 2 λανθασμένη χρήση.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Γίνεται σύνδεση</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Ανοιχτό κάλυμμα</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Λείπει το πρόγραμμα οδήγησης</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Τέλος εμφανιστή</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Λίγος εμφανιστής</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Ανοιχτή θύρα</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Πολύ θερμός</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Προθέρμανση</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Κρατά τις νέες εργασίες</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Λείπει δίσκος χαρτιού</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Τέλος μελανιού ή τόνερ</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Λίγο μελάνι ή τόνερ</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Σχεδόν γεμάτο δοχείο αποβλήτων τόνερ</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Γεμάτο δοχείο αποβλήτων τόνερ</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Τέλος χαρτιού</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Εμπλοκή χαρτιού</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Λίγο χαρτί</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Χρειάζεται χαρτί</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Γίνεται παύση</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Εκτός σύνδεσης</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Φθαρμένο τύμπανο</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Σχεδόν φθαρμένο τύμπανο</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Χρειάζεται προσοχή</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Σχεδόν γεμάτος δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Γεμάτος δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Λείπει ο δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Σε παύση</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Απενεργοποιημένος</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Γεμάτη μνήμη εκτυπωτή</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Εν μέρει σε διακοπή</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Γίνεται διακοπή</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Δεν αποκρίνεται</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Τέλος τόνερ</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Λίγο τόνερ</translation>
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
        <translation>Μισό US Letter</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Καρτ ποστάλ (Ιαπωνία)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Διπλή καρτ ποστάλ (Ιαπωνία)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Φάκελος Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Φάκελος %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Φάκελος αρ. %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Αυτόματα</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Κύριος δίσκος</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Εναλλακτικός δίσκος</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Κασέτα</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Κασέτα %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Δίσκος %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Χειροκίνητη τροφοδοσία</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Δίσκος πολλαπλών χρήσεων</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Τροφοδότης φακέλων</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Χειροκίνητη τροφοδοσία φακέλων</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Δίσκος μεγάλης χωρητικότητας</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Επάνω δίσκος</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Μεσαίος δίσκος</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Κάτω δίσκος</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Αριστερός δίσκος</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Δεξιός δίσκος</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Πλευρικός δίσκος</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Πίσω δίσκος</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Κεντρικός δίσκος</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Δίσκος φωτογραφιών</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Δίσκος για CD/DVD</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Δίσκος για καρτ ποστάλ</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Ρολό χαρτιού</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Εναλλακτικό ρολό χαρτιού</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Ρολό %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Απλό χαρτί</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Επιστολόχαρτο</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Προεκτυπωμένο χαρτί</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Διάτρητο χαρτί</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Ανακυκλωμένο χαρτί</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Χαρτί bond</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Βαρύ χαρτί</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Λεπτό χαρτί</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Επιχρισμένο χαρτί</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Χαρτί inkjet</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Χαρτί ποιότητας</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Έγχρωμο χαρτί</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Βαμβακερό χαρτί</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Χαρτόνι</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Διαφάνεια</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Φάκελος</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Ετικέτες</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Φωτογραφικό χαρτί</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Φωτογραφικό χαρτί, γυαλιστερό</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Φωτογραφικό χαρτί, πολύ γυαλιστερό</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Φωτογραφικό χαρτί, ημιγυαλιστερό</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Φωτογραφικό χαρτί, σατινέ</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Φωτογραφικό χαρτί, ματ</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Συνεχές χαρτί</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Χαρτί με διαχωριστικά</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Φιλμ</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>CD/DVD</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Επάνω δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Μεσαίος δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Κάτω δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Αριστερός δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Δεξιός δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Κεντρικός δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Πλευρικός δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Πίσω δίσκος εξόδου</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Με την όψη προς τα πάνω</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Με την όψη προς τα κάτω</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Στοιβακτήρας %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Στοιβακτήρας</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Θυρίδα %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Η θυρίδα μου</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Έγχρωμα</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Ασπρόμαυρα</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Μόνο μαύρο, χωρίς γκρι</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Πρόχειρη</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Κανονική</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Υψηλή</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Κανένα</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Συρραφή</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Δύο συρραπτικά</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Τρία συρραπτικά</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Ραφή στην άκρη</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Ραφή στη ράχη</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Φυλλάδιο</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Διάτρηση</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Δύο οπές</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Τρεις οπές</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Τέσσερις οπές</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Πολλές οπές</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Βιβλιοδεσία</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Ξάκρισμα</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Προσθήκη εξωφύλλου</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Μετατόπιση εργασιών</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Πλαστικοποίηση</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Δίπλωση</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Δίπλωση στη μέση</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Δίπλωση επιστολής</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Δίπλωση Z</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Μισή δίπλωση Z</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Δίπλωση ακορντεόν</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Δίπλωση παραθύρου</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Διπλή δίπλωση παραθύρου</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Παράλληλη δίπλωση</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>πάνω αριστερά</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>κάτω αριστερά</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>πάνω δεξιά</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>κάτω δεξιά</translation>
    </message>
    <message>
        <source>left</source>
        <translation>αριστερά</translation>
    </message>
    <message>
        <source>top</source>
        <translation>πάνω</translation>
    </message>
    <message>
        <source>right</source>
        <translation>δεξιά</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>κάτω</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, χωρίς περιθώρια</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Εξώφυλλο πριν</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Εξώφυλλο μετά</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Απαιτείται κωδικός πρόσβασης</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>Ο εκτυπωτής %1 ζητά τον κωδικό πρόσβασής σας.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>Ο διακομιστής εκτύπωσης %1 ζητά τον κωδικό πρόσβασής σας.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Λάθος όνομα χρήστη ή κωδικός πρόσβασης. Προσπαθήστε ξανά.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Τομέας:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Όνομα χρήστη:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Κωδικός πρόσβασης:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Αποστολή της εργασίας</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Εκτύπωση</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Δεν είναι δυνατή η ανάγνωση του %1: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>Το %1 είναι φάκελος. Επιλέξτε ένα αρχείο.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>Το %1 ξεπερνά τα %2, το μέγιστο που μπορεί να εκτυπωθεί.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>Δεν είναι δυνατή η αντιγραφή του %1 για εκτύπωση: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>Το %1 είναι κενό. Δεν υπάρχει τίποτα για εκτύπωση.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Το έγγραφο</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 και %n ακόμη</numerusform>
            <numerusform>%1 και %n ακόμη</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>Το έγγραφο δεν έχει σελίδες. Δεν υπάρχει τίποτα για εκτύπωση.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση. Εγκαταστήστε το cups για να τη δείτε.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση, επειδή η μετατροπή του εγγράφου διαρκεί πολύ.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση για αυτόν τον τύπο εγγράφου.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>Το έγγραφο προστατεύεται με κωδικό πρόσβασης. Πληκτρολογήστε τον κωδικό για να το εκτυπώσετε.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>Το έγγραφο είναι κατεστραμμένο και δεν μπορεί να εμφανιστεί. Ο εκτυπωτής ίσως δεν μπορέσει να το εκτυπώσει.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>Το έγγραφο είναι κατεστραμμένο. Ένα μέρος του μπορεί να λείπει.</translation>
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
        <translation>Επιλογή…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Επιλογή εγγράφου</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Δεν είναι δυνατό το άνοιγμα του εγγράφου. Εγκαταστήστε το qpdf για να το ανοίξετε.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Το άνοιγμα του εγγράφου διαρκεί πολύ.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Δεν υπάρχει αρκετός χώρος για ένα αντίγραφο του εγγράφου.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>Το έγγραφο είναι κατεστραμμένο και δεν μπορεί να ανοίξει.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Λάθος κωδικός πρόσβασης. Απομένει μία προσπάθεια.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Λάθος κωδικός πρόσβασης. Απομένει %n προσπάθεια.</numerusform>
            <numerusform>Λάθος κωδικός πρόσβασης. Απομένουν %n προσπάθειες.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>η αναζήτηση του διακομιστή εκτύπωσης %1 διήρκεσε πολύ</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>δεν υπάρχει διακομιστής εκτύπωσης με όνομα %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>δεν είναι δυνατή η σύνδεση με κρυπτογράφηση στον διακομιστή εκτύπωσης %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>δεν είναι δυνατή η σύνδεση στον διακομιστή εκτύπωσης %1. Εκτελείται;</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>ο διακομιστής εκτύπωσης %1 σταμάτησε να διαβάζει το έγγραφο</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>η απάντηση του διακομιστή εκτύπωσης είναι ελλιπής</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>η απάντηση του διακομιστή εκτύπωσης είναι πολύ μεγάλη</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>ο διακομιστής εκτύπωσης %1 δεν απάντησε μέσα σε %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>ο διακομιστής εκτύπωσης %1 έκλεισε τη σύνδεση</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>ο διακομιστής εκτύπωσης %1 ανακατεύθυνε σε άλλη διεύθυνση (κατάσταση HTTP %2)· οι ανακατευθύνσεις δεν ακολουθούνται</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>ο διακομιστής εκτύπωσης %1 ζητά κωδικό πρόσβασης</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>ο διακομιστής εκτύπωσης %1 απάντησε: %2 (κατάσταση HTTP %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>δεν είναι δυνατή η ανάγνωση της απάντησης του διακομιστή εκτύπωσης</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>οι επιλογές της εργασίας</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>το όνομα χρήστη</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>το όνομα της εργασίας</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>η σύνοψη του PIN</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>το PIN</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>η ώρα της εργασίας</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>το PIN του φακέλου</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>ο φάκελος</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>ο αριθμός χρήστη</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>ο αριθμός λογαριασμού</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>ο διακομιστής εκτύπωσης δεν έδωσε αριθμό στην εργασία</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>δεν είναι δυνατή η δημιουργία εργασίας στο «%1»: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>δεν είναι δυνατή η ακύρωση της εργασίας %1-%2: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>η απάντηση του διακομιστή εκτύπωσης δεν περιέχει την εργασία</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>δεν είναι δυνατό να διαπιστωθεί τι βλέπουν οι άλλοι χρήστες: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: γραμμή %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>δεν είναι δυνατή η λήψη του PPD του %1: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>δεν είναι δυνατή η αποθήκευση του PPD: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>το PPD του %1 είναι πολύ μεγάλο</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>δεν είναι δυνατή η ανάγνωση της τυπικής εισόδου</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: είναι φάκελος</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>η εργασία διακόπηκε</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>ο διακομιστής εκτύπωσης διέκοψε την εργασία: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>αυτός ο εκτυπωτής δεν δέχεται αυτόν τον τύπο αρχείου</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>αυτός ο εκτυπωτής δεν δέχεται αυτόν τον τύπο αρχείου (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>δεν ήταν δυνατή η εκτύπωση του %1: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>ο διακομιστής εκτύπωσης απέρριψε την εργασία: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>ο «%1» δεν δέχεται εργασίες</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>ο «%1» δεν δέχεται εργασίες: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>δεν υπάρχει εκτυπωτής με όνομα «%1»</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>δεν είναι δυνατό το άνοιγμα του εκτυπωτή «%1»: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>η επέκταση «Διαχείριση εργασιών» δεν έχει πίνακα για τον διάλογο εκτύπωσης</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>ο πίνακας δεν έχει διάταξη</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>δεν είναι δυνατή η εγγραφή της απάντησης του εκτυπωτή στον προσωρινό φάκελο. Είναι γεμάτος ο δίσκος;</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>η απάντηση του εκτυπωτή δεν είναι λίστα φακέλων</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>δεν βρέθηκε το JobHandling.pde δίπλα στο πρόγραμμα ή στον φάκελο βιβλιοθηκών</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>δεν είναι δυνατή η αποθήκευση των φακέλων: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Διαχείριση εργασιών για το μοντέλο %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>δεν έχει εκτυπωθεί τίποτα ακόμη</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>μια προρύθμιση δεν μπορεί να αποθηκεύσει το όνομα αυτού του φακέλου</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>δεν υπάρχει προρύθμιση «%1»· αυτός ο εκτυπωτής δεν έχει προρυθμίσεις</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>δεν υπάρχει προρύθμιση «%1»· αυτός ο εκτυπωτής έχει: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>η προρύθμιση «%1» είναι κατεστραμμένη και έμεινε αμετάβλητη</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>οι προρυθμίσεις αυτού του εκτυπωτή είναι κατεστραμμένες και έμειναν αμετάβλητες</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>το όνομα μιας προρύθμισης πρέπει να έχει έως %1 χαρακτήρες· επιλέξτε ένα συντομότερο</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>δεν είναι δυνατή η ανάγνωση των προρυθμίσεων αυτού του εκτυπωτή: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>η προρύθμιση «%1» είναι για άλλο μοντέλο εκτυπωτή, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>ο διακομιστής εκτύπωσης δεν γνωρίζει πια την εργασία</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>δεν είναι δυνατή η ακύρωση της εργασίας %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>λάθος όνομα χρήστη ή κωδικός πρόσβασης για τον εκτυπωτή «%1»</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>λάθος όνομα χρήστη ή κωδικός πρόσβασης για τον διακομιστή εκτύπωσης %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>ο εκτυπωτής «%1» ζητά κωδικό πρόσβασης</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>δεν είναι δυνατή η ρύθμιση του εκτυπωτή «%1»: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>ο εκτυπωτής δεν αποκρίνεται</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>η διεύθυνση είναι άγνωστη</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>η σύνδεση απορρίφθηκε</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>η σύνδεση έκλεισε</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>καμία έγκαιρη απόκριση</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>η απόκριση δεν μπορεί να διαβαστεί</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>δεν είναι δυνατή η πρόσβαση στον εκτυπωτή</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>καμία λίστα φακέλων από %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: φάκελος, όχι αρχείο PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>δεν έχει οριστεί προεπιλεγμένος εκτυπωτής· επιλέξτε έναν με το -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>ανήκει σε άλλον εκτυπωτή</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>δεν είναι δυνατή η επανεκκίνηση της εργασίας %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>δεν είναι δυνατή η αλλαγή της εργασίας %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Ώρα</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Στις</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Πληκτρολογήστε μια ώρα, για παράδειγμα 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Αναμονή για τον εκτυπωτή</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Αναμονή για 1 άλλη εργασία</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Αναμονή για %n άλλη εργασία</numerusform>
            <numerusform>Αναμονή για %n άλλες εργασίες</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Σε κράτηση: ο εκτυπωτής ζητά κωδικό πρόσβασης</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Σε κράτηση έως την ώρα εκτύπωσης</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Σε κράτηση μέχρι την αποδέσμευση</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Εκτυπώνει</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Εκτύπωση σελίδας %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Εκτύπωση σελίδας %1 από %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Διακόπηκε: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Διακόπηκε: ο εκτυπωτής είναι σε παύση</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Διακόπηκε</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Περιμένει στον %1 ώσπου να πληκτρολογήσετε εκεί το PIN σας</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Περιμένει στον %1 ώσπου να την αποδεσμεύσετε εκεί</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Εκτυπώθηκε</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Εκτυπώθηκε και διατηρείται στον %1 για επανεκτύπωση</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Ένα αντίγραφο εκτυπώθηκε, τα υπόλοιπα περιμένουν στον %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Ακυρώθηκε από %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Ακυρώθηκε στον εκτυπωτή</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Ακυρώθηκε</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Διακόπηκε από τον διακομιστή εκτύπωσης</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Δεν εκτυπώθηκε</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Δεν είναι γνωστό αν η εργασία εκτυπώθηκε</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Σύνδεση με τον εκτυπωτή</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Γενικά</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Διάταξη</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Εργασία</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Περισσότερες επιλογές</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Φίλτρο</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>Σε ένα αρχείο PDF οι σελίδες μένουν όπως είναι. Μπορείτε να επιλέξετε μόνο τις σελίδες και τη σειρά τους.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση, επειδή η σχεδίαση της σελίδας διαρκεί πολύ.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση για αυτόν τον τύπο εγγράφου.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση. Εγκαταστήστε το poppler-utils για να τη δείτε.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση, επειδή αυτό το έγγραφο PDF δεν διαβάζεται.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Προηγούμενη σελίδα</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Επόμενη σελίδα</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Σελίδα</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Όλες οι σελίδες</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Επιλεγμένες σελίδες</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>Το έγγραφο τελειώνει στη σελίδα %1. Σελίδες που θα εκτυπωθούν: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Κλείδωμα: %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Πληκτρολογήστε τη διεύθυνση του εκτυπωτή για να λάβετε τα ονόματα των φακέλων του.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>Το «%1» δεν είναι διεύθυνση. Πληκτρολογήστε το όνομα ή τη διεύθυνση IP του εκτυπωτή.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Αυτός ο εκτυπωτής δεν αρχειοθετεί έγγραφα, επομένως η επιλογή φακέλου δεν έχει αποτέλεσμα.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Κλειδωμένο: αυτή η τιμή είναι αποθηκευμένη για αυτόν τον εκτυπωτή.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Ξεκλείδωτο: αυτή η τιμή ισχύει μόνο για αυτή την εργασία.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Πλάτος</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Ύψος</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>ίντσες</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Προσαρμοσμένο μέγεθος</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Πληκτρολογήστε ένα πλάτος μεταξύ %1 και %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Πληκτρολογήστε ένα ύψος μεταξύ %1 και %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Προστατευμένο έγγραφο</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>Το %1 προστατεύεται με κωδικό πρόσβασης. Πληκτρολογήστε τον κωδικό για να εκτυπώσετε το έγγραφο.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>Το έγγραφο</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Κωδικός πρόσβασης</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>No pages are selected.</source>
        <translation>Δεν έχουν επιλεγεί σελίδες.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Εγκαταστήστε το qpdf για να αποθηκεύετε αρχεία PDF.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>Η αποθήκευση διαρκεί πολύ.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Δεν υπάρχει αρκετός χώρος.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Διακόπηκε.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>Δεν είναι δυνατή η αποθήκευση του %1. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Ποσοστό</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Προσαρμοσμένη</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Πληκτρολογήστε ένα ποσοστό μεταξύ %1 και %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Προρυθμίσεις</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Τελευταία χρήση</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Καμία προρύθμιση</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Αποθήκευση ως προρύθμιση…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Διαγραφή προρύθμισης</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (τροποποιημένη)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Προρυθμίσεις: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Αποθήκευση ως προρύθμιση</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Να συμπεριληφθούν τα PIN</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Όνομα:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Αντικατάσταση της προρύθμισης «%1»;</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Μόνο έγγραφα PDF μπορούν να αποθηκευτούν ως PDF.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Δεν έχουν επιλεγεί σελίδες.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Σελίδα %1 από %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Φύλλο %1 από %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Φύλλο %1 από %2, μπροστά</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Φύλλο %1 από %2, πίσω</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 σελίδα</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n σελίδα</numerusform>
            <numerusform>%1, %n σελίδες</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Σύνολο: 1 φύλλο χαρτιού</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Σύνολο: %n φύλλο χαρτιού</numerusform>
            <numerusform>Σύνολο: %n φύλλα χαρτιού</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Σύνδεση με τον εκτυπωτή…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Αποθηκεύει τις επιλεγμένες σελίδες σε αρχείο.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Εκτύπωση</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Αυτός ο εκτυπωτής δεν υποστηρίζει: %1. Η εργασία θα εκτυπωθεί χωρίς αυτό.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Αποθήκευση ως PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Εκτύπωση στον %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Δεν έχει επιλεγεί έγγραφο</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Ανάγνωση του εγγράφου…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>Το έγγραφο είναι μεγάλο. Το υπόλοιπο διαβάζεται κατά την εκτύπωση.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Δεν υπάρχει διαθέσιμη προεπισκόπηση. Η εφαρμογή ετοιμάζει τις σελίδες αφού πατήσετε «Εκτύπωση».</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Κανένα έγγραφο</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Επιλογή εγγράφου</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Έγγραφα PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>Η εργασία %1 στάλθηκε στον %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Αποθηκεύτηκε ως %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>Η εργασία δεν εκτυπώθηκε. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Αποθήκευση…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Επιλέξτε ένα έγγραφο για εκτύπωση.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Ακύρωση της εργασίας…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Εκτυπωτής:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Έγγραφο:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Αυτός ο εκτυπωτής δεν υποστηρίζει από την προρύθμιση: %1. Τα υπόλοιπα ορίστηκαν.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Σύνοψη</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Χωρίς κράτηση</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Εργασία %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση των τιμών της.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Εκτύπωση ξανά</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Ακύρωση εργασίας</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Εμφάνιση</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 φάκελος από %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n φάκελος από %1</numerusform>
            <numerusform>%n φάκελοι από %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>Ο διακομιστής εκτύπωσης δεν έχει πλέον αυτόν τον εκτυπωτή. Ίσως έχει αφαιρεθεί.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Εκτυπωτής</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Όνομα:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Περιγραφή:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Μοντέλο:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Τοποθεσία:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Κατάσταση:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Μήνυμα:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Άγνωστη στάθμη</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Εκτυπωτής</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Νέα προσπάθεια</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Κανένας εκτυπωτής</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Αναζήτηση εκτυπωτών…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Πληκτρολογήστε το όνομα ενός εκτυπωτή.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Πατήστε Enter για να επιλέξετε %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Ταιριάζουν πολλοί εκτυπωτές. Επιλέξτε έναν από αυτούς.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Δεν υπάρχει εκτυπωτής με όνομα «%1».</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Λεπτομέρειες</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Λεπτομέρειες εκτυπωτή</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Αποθήκευση ως PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Δεν δέχεται εργασίες: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Δεν δέχεται εργασίες</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Σε παύση: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Σε παύση</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Εκτυπώνει</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Έτοιμος</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 εργασία σε αναμονή</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n εργασία σε αναμονή</numerusform>
            <numerusform>%n εργασίες σε αναμονή</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>Στο δίκτυο</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Κανένας εκτυπωτής δεν δέχεται εργασίες. Ελέγξτε τους εκτυπωτές στις ρυθμίσεις συστήματος και προσπαθήστε ξανά.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Προεπισκόπηση</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Ποιος βλέπει αυτή την εργασία;</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Άλλοι χρήστες βλέπουν ότι αυτή η εργασία υπάρχει, αλλά καμία λεπτομέρειά της.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Άλλοι χρήστες βλέπουν: %1. Για απόκρυψη, προσθέστε αυτές τις γραμμές στην πολιτική «%2» του διακομιστή εκτύπωσης:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (τροποποιημένη)</translation>
    </message>
</context>
</TS>
