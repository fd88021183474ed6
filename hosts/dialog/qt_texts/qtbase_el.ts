<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR" sourcelanguage="en">
<context>
    <name>QFileDialog</name>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Αρχείο</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ά&amp;νοιγμα</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Απο&amp;θήκευση</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Ψευδώνυμο</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Μονάδα</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Αρχεία</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Εμφάνιση </translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>Το «%1» προστατεύεται από εγγραφή.
Θέλετε να το διαγράψετε ούτως ή άλλως;</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Θέλετε σίγουρα να διαγράψετε το «%1»;</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Λίστα τοποθεσιών και σελιδοδεικτών</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Όνο&amp;μα αρχείου:</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Φάκελος αρχείων</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Νέος φάκελος</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Φάκελος</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Γονικός κατάλογος</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Νέος φάκελος</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Ο υπολογιστής μου</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Αναζήτηση σε:</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Δημιουργία νέου φακέλου</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Αρχείο %1</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Τύπος αρχείων:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Εύρεση καταλόγου</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Εμφάνιση &amp;κρυφών αρχείων</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Αποθήκευση ως</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ο κατάλογος δεν βρέθηκε.
Ελέγξτε ότι δόθηκε το σωστό όνομα καταλόγου.</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Πλευρική στήλη</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Προβολή λίστας</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Επιλογή</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Διαγραφή</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Όλα τα αρχεία (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Όλα τα αρχεία (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Κατάλογοι</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Μετονομασία</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Δεν ήταν δυνατή η διαγραφή του καταλόγου.</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Κατάλογος:</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Άγνωστο</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>Το %1 υπάρχει ήδη.
Θέλετε να το αντικαταστήσετε;</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Μπροστά</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Μετάβαση μπροστά</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Μετάβαση στον γονικό κατάλογο</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Πρόσφατες τοποθεσίες</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Μετάβαση πίσω</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Αλλαγή σε αναλυτική προβολή</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Δημιουργία νέου φακέλου</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Συντόμευση</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Αναλυτική προβολή</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Το αρχείο δεν βρέθηκε.
Ελέγξτε ότι δόθηκε το σωστό όνομα αρχείου.</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Αλλαγή σε προβολή λίστας</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Kind</source>
        <translation>Είδος</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Όνομα</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Τύπος</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Ο υπολογιστής μου</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Υπολογιστής</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Μη έγκυρο όνομα αρχείου</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Το όνομα «%1» δεν μπορεί να χρησιμοποιηθεί.&lt;/b&gt;&lt;p&gt;Δοκιμάστε ένα άλλο όνομα, με λιγότερους χαρακτήρες ή χωρίς σημεία στίξης.</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Τροποποίηση</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>Ό&amp;χι</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ναι</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Αποθήκευση</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Διακοπή</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Εφαρμογή</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Επαναφορά προεπιλογών</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Παράβλεψη</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Ό&amp;χι σε όλα</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Αποθήκευση όλων</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Απόρριψη</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ναι σε ό&amp;λα</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Αποκο&amp;πή</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Αντιγραφή</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ακύρωση &amp;αναίρεσης</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ανα&amp;ίρεση</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Επικόλληση</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Αντιγραφή διεύθυνσης &amp;συνδέσμου</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Αποκο&amp;πή</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Αντιγραφή</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ακύρωση &amp;αναίρεσης</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ανα&amp;ίρεση</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Επικόλληση</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>Step &amp;down</source>
        <translation>Βήμα &amp;κάτω</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Βήμα &amp;πάνω</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Επιλογή όλων</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Άνοιγμα του αναδυόμενου μενού επιλογής</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Απο&amp;θήκευση</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Κλείσιμο</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Κλείσιμο χωρίς αποθήκευση</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Ακύρωση</translation>
    </message>
</context>
</TS>
