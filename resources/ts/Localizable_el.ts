<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR" sourcelanguage="en_US">
<context>
    <name>JobHandling</name>
    <message>
        <source>Job Handling</source>
        <translation>Διαχείριση εργασιών</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Αποθήκευση εργασίας</translation>
    </message>
    <message>
        <source>User and account</source>
        <translation>Χρήστης και λογαριασμός</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Κράτηση</translation>
    </message>
    <message>
        <source>Hold mode</source>
        <translation>Τρόπος</translation>
    </message>
    <message>
        <source>Hold only</source>
        <translation>Μόνο κράτηση</translation>
    </message>
    <message>
        <source>Hold after printing</source>
        <translation>Κράτηση μετά την εκτύπωση</translation>
    </message>
    <message>
        <source>Sample print</source>
        <translation>Δείγμα εκτύπωσης</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Document filing</source>
        <translation>Αρχειοθέτηση εγγράφων</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Φάκελος</translation>
    </message>
    <message>
        <source>Quick file</source>
        <translation>Γρήγορη αρχειοθέτηση</translation>
    </message>
    <message>
        <source>Main folder</source>
        <translation>Κύριος φάκελος</translation>
    </message>
    <message>
        <source>Custom folder</source>
        <translation>Προσαρμοσμένος φάκελος</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>PIN φακέλου</translation>
    </message>
    <message>
        <source>Printer&apos;s address</source>
        <translation>Διεύθυνση εκτυπωτή</translation>
    </message>
    <message>
        <source>Get folder names</source>
        <translation>Λήψη ονομάτων φακέλων</translation>
    </message>
    <message>
        <source>Login name</source>
        <translation>Όνομα σύνδεσης</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Κωδικός πρόσβασης</translation>
    </message>
    <message>
        <source>User number</source>
        <translation>Αριθμός χρήστη</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Αριθμός λογαριασμού</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Αναγνωριστικό εργασίας</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Όνομα χρήστη</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Όνομα εργασίας</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ναι</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Πληροφορία</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please confirm the following setting items.
Login Name
User Number%@</source>
        <translation>Ελέγξτε τις ακόλουθες ρυθμίσεις.
Όνομα σύνδεσης
Αριθμός χρήστη%@</translation>
    </message>
    <message>
        <source>Could not retrieve Folder Names.%@</source>
        <translation>Δεν ήταν δυνατή η λήψη των ονομάτων φακέλων.%@</translation>
    </message>
</context>
</TS>
