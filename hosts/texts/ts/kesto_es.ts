<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>debe ser %1 o %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>argumento inesperado</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opción desconocida %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 requiere un valor</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite ningún valor</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 no se puede usar con %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Pruebe «%1 --help».</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 requiere %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>no se puede escribir en la salida estándar</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la línea es demasiado larga</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>la línea no está en UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>la línea está vacía</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>no hay ningún terminal en el que preguntar</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrumpido</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>debe estar entre 0.1 y 3600 segundos</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>el número de copias debe estar entre %1 y %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>la prioridad debe estar entre %1 y %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>los segundos deben estar entre %1 y %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 se ha indicado dos veces</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>desistir si el servidor calla durante este tiempo (predeterminado: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>mostrar este texto, o la versión</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Uso: %1 [OPCIÓN]... [ARCHIVO]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>como en la orden de impresión habitual</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>El archivado rápido no lleva código de acceso.</translation>
    </message>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>El trabajo no se retiene en la impresora. Active primero «Retener el trabajo».</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Solo tienen código de acceso las carpetas personalizadas o protegidas.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Esta impresora le identifica por el número de usuario, no por el nombre de inicio de sesión.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Este dato está bloqueado y se recuerda para esta impresora. Abra el candado para cambiarlo.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Solo una carpeta personalizada necesita un nombre. Elija primero «Carpeta personalizada».</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Ocultar los dígitos</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Mostrar los dígitos</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Say who you are</source>
        <translation>Indicar quién es usted</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Ayuda para imprimir</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Elegir una impresora</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Elija una impresora de la lista. Si la lista es larga, escriba una parte del nombre de la impresora y pulse Intro. La línea situada bajo la lista indica si la impresora está lista.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Imprimir algunas páginas</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Elija «Páginas seleccionadas» y escriba números o intervalos de páginas, por ejemplo, 1-3, 5. Un intervalo puede quedar abierto: 5- imprime la página 5 y todas las siguientes.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Imprimir por las dos caras</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Elija «Borde largo» para que las páginas se pasen como las de un libro, o «Borde corto» para que se pasen como las de un bloc de notas.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Ver lo que se va a imprimir</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Retener un trabajo en la impresora con un código de acceso</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Volver a usar un dato</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Cierre el candado que hay junto a un dato. El dato se recordará para esta impresora. Para cambiarlo, abra el candado.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Elegir una carpeta de la impresora</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Guardar los ajustes como preajuste</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Pulse «Preajustes» y elija «Guardar como preajuste». Para volver a usar los ajustes, elija allí el preajuste. Los códigos de acceso solo se guardan si los incluye.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Ver qué pueden ver los demás de un trabajo</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Cancelar un trabajo</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Usar el teclado</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt y una letra subrayada llevan a un control; Alt, Mayús y la letra, al candado que hay junto a él. Intro imprime, Esc cancela y F1 abre esta ayuda. Ctrl+R muestra los dígitos de un código de acceso mientras el cursor está en él.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>En «Gestión de trabajos», active «Retener el trabajo» y escriba un código de acceso de hasta 8 dígitos. El trabajo espera en la impresora hasta que alguien introduce allí el código. «Retener tras imprimir» conserva el trabajo después de imprimirlo. «Imprimir una muestra» imprime una copia y retiene las demás.</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Algunas impresoras preguntan quién imprime. En «Usuario y cuenta», escriba su número de usuario, o su nombre de inicio de sesión y su contraseña.</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>La vista previa muestra las hojas de papel tal como saldrán de la impresora. Pase las páginas con las flechas de debajo o con Re Pág y Av Pág, y amplíelas con Ctrl y la rueda del ratón.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Guardar las páginas como archivo PDF</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Imprimir varias páginas por hoja</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>En «Diseño», elija el número de páginas por hoja, su orden y un borde. En una impresora que produce folletos, «Folleto» coloca las páginas de modo que las hojas dobladas se lean como un libro.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Ajustar las páginas al papel</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>En «Diseño», «Escala» decide qué ocurre con las páginas que son más grandes o más pequeñas que el papel. «Ajustar al papel» las muestra enteras, «Rellenar el papel» no deja margen y puede cortar los bordes, y «Tamaño real» las deja como están. El porcentaje de «Personalizada» se aplica a las imágenes.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Elegir cuándo imprimir</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>En «Trabajo», «Imprimir» retiene el trabajo en el servidor de impresión hasta una hora determinada o, con «En espera», hasta que lo libere en la lista de trabajos de impresión del sistema. De los trabajos que esperan, se imprime primero el de mayor prioridad.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Añadir portadas e información de facturación</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>En «Trabajo», elija una portada que se imprima antes o después del documento. La información de facturación, por ejemplo, un número de proyecto, se guarda con el trabajo en los registros del servidor de impresión.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Encontrar otra opción de la impresora</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>«Más opciones» contiene todas las demás opciones de la impresora. Escriba parte de un nombre en el filtro para ver solo las opciones que la contienen.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Elija «Guardar como PDF» en la lista de impresoras y pulse «Guardar». El archivo contiene las páginas seleccionadas. Solo se pueden guardar documentos PDF, y solo se pueden elegir las páginas y su orden.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Imprimir un documento protegido con contraseña</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Al pulsar «Imprimir», el diálogo pide la contraseña del documento. Imprime una copia sin contraseña, que solo usted puede leer y que después se elimina.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>En «Gestión de trabajos», active «Retener el trabajo». En «Archivado del documento», elija «Carpeta personalizada» y escriba el nombre de una carpeta. «Obtener nombres de carpetas» pide sus carpetas a la impresora, para que pueda elegir una de la lista.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>En el resumen, pulse «¿Quién puede ver este trabajo?». La respuesta indica qué detalles de un trabajo muestra el servidor de impresión a los demás usuarios y cómo ocultarlos.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Pulse «Cancelar» mientras se envía el trabajo. Mientras el diálogo sigue el trabajo, pulse «Cancelar el trabajo»; «Volver a imprimir» envía otra vez un trabajo que ha fallado. Una vez cerrado el diálogo, use la lista de trabajos de impresión del sistema.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Current page</source>
        <translation>Página actual</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Custom %1 x %2 %3</source>
        <translation>Personalizado %1 x %2 %3</translation>
    </message>
    <message>
        <source>Custom %1</source>
        <translation>Personalizado %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por hoja</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Orden de las páginas</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamaño del papel</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origen del papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Doble cara</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grapado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Borde largo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Borde corto</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Imprimir solo</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforado</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegado</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borde</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Información de facturación</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Portadas</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas las páginas</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Páginas impares</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>Páginas pares</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Horizontal invertida</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Vertical invertida</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>De izquierda a derecha, de arriba abajo</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>De izquierda a derecha, de abajo arriba</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>De derecha a izquierda, de arriba abajo</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>De derecha a izquierda, de abajo arriba</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>De arriba abajo, de izquierda a derecha</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>De arriba abajo, de derecha a izquierda</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>De abajo arriba, de izquierda a derecha</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>De abajo arriba, de derecha a izquierda</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Línea simple</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Línea simple gruesa</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Línea doble</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Línea doble gruesa</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Ajustar al papel</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Rellenar el papel</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Sin clasificar</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Clasificado</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidencial</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Alto secreto</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>A las %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>No es posible imprimir a doble cara en %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 «%2» no es posible con %3 «%4».</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Desactivar la doble cara</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Cambiar %1 a %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Páginas %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 copia</translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Escriba números o intervalos de páginas, por ejemplo 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>El documento termina en la página %1. Escriba números de página hasta %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copias</numerusform>
        </translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: esta impresora no lo ofrece</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>esta impresora no pregunta quién imprime</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 debe tener %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>como máximo %n cifra</numerusform>
            <numerusform>como máximo %n cifras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>como máximo %n carácter</numerusform>
            <numerusform>como máximo %n caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 no se puede usar con --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 requiere --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 requiere --folder NAME de una carpeta con código o de una carpeta personalizada</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 no se puede usar con un número de usuario</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Código de acceso</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>código de acceso del trabajo retenido</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main o el nombre de una carpeta</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Código de la carpeta</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>código de la carpeta</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>nombre de inicio de sesión</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>contraseña del nombre de inicio de sesión</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>número de usuario en lugar de inicio de sesión</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>número de cuenta</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>nombre de usuario en la impresora</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>nombre del trabajo en la impresora</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>falta el número de usuario; indíquelo con %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>falta el nombre de inicio de sesión; indíquelo con %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p es -q y -w es -m; las demás no tienen efecto</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>hacen de cola cuando no se envía ningún trabajo</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>mostrar los ajustes del trabajo sin enviar nada; guardar solo lo que piden --remember, --forget o --save-preset</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>mostrar el resumen del panel en lugar de los ajustes</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>enumerar las colas, o las que ofrecen la gestión de trabajos, y las impresoras de la red</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>obtener, recordar y enumerar las carpetas de la impresora</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>mostrar qué ven otros usuarios del servidor de las opciones de un trabajo, y cómo ocultarlo</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>mostrar qué ocurre con el trabajo hasta que se imprime o queda retenido en la impresora; si no, termina con 1, o con 4 si sigue esperando tras SECONDS</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>mostrar JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>la contraseña que pide el servidor o la impresora</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>retener el trabajo: sin imprimirlo, después de imprimirlo o tras una muestra</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>no retener el trabajo</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>tomar X (pin, folder-pin, password) de la primera línea de un archivo o de la entrada estándar, «-», o pedirlo en el terminal: otros usuarios pueden ver una línea de órdenes</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>recordar los datos X para los próximos trabajos de esta cola</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>dejar de recordarlos</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>partir de un preajuste de esta cola</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>guardar los ajustes como preajuste; los códigos de acceso, solo junto con --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>hacer solo esto, para -d o --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Imprime archivos, o la entrada estándar, con la gestión de trabajos de una impresora.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Termina con 0 hecho, 1 error, 2 uso incorrecto, 3 rechazado por el panel, 4 en espera.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>se deja de esperar: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>en la red</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenida</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 trabajo</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n trabajo</numerusform>
            <numerusform>%n trabajos</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>esta impresora no tiene lista de carpetas</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>se desconoce la dirección de la impresora; indíquela con --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>«%1» no es una dirección</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: los demás usuarios no ven ninguna opción de un trabajo.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: los demás usuarios ven de un trabajo: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Un administrador lo oculta en cupsd.conf, en la directiva de la impresora:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Un administrador lo oculta en cupsd.conf, en &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloqueada</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder no tiene efecto: esta impresora no archiva documentos</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>no se pueden recordar los datos: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>el trabajo se ha enviado, pero: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>un trabajo sin procesar (raw) se salta el controlador y, con él, la gestión de trabajos</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>la impresora «%1» no ofrece la gestión de trabajos</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>se omite -m: va con un trabajo nuevo</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>aviso: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i cambia un trabajo ya enviado; no indique archivos</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i cambia un trabajo donde está; no indique -d ni --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i no puede cambiar la gestión de trabajos de un trabajo ya enviado</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait requiere un trabajo que imprimir</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>una lista no se puede combinar con las opciones de un trabajo</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>no se ha indicado ninguna impresora; elíjala con -d o --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd requiere --dry-run o --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>solo se puede leer un dato de la entrada estándar</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>no debe estar vacío</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>debe ser una hora como 18:30 (UTC), hold, immediate, resume, restart o una palabra clave del servidor de impresión como evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>debe ser un trabajo como 12 o QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>se omite %1: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>CUPS no tiene formularios</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>CUPS no tiene modos; use -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>el juego de caracteres es siempre UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>el servidor de impresión detecta el tipo; use -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember y --forget no pueden nombrar ambos %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>use solo una de las opciones -i, --dry-run, --list, --folders, --check, --list-presets y --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Contraseña incorrecta. Contraseña de %1 para %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Contraseña de %1 para %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; indíquela con --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>enviando el documento %1: %2 MiB, %3&#xa0;%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>enviando el documento %1: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>cambiar un trabajo ya enviado: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>la contraseña del archivo no se envía a «%1», que es una impresora de la red y no está configurada en el servidor de impresión</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>«%1» no está configurada en el servidor de impresión; se usa la impresora de la red: %2</translation>
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
        <translation>no hay ninguna impresora disponible</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>abrir esta sección</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>guardar una imagen del diálogo y salir</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>mostrar cuánto ha tardado el inicio y salir</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Muestra el diálogo de impresión para archivos, o para la entrada estándar.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Termina con 0 enviado, 1 no enviado, 2 uso incorrecto.</translation>
    </message>
</context>
<context>
    <name>PrinterReasons</name>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Cover open</source>
        <translation>Cubierta abierta</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Falta el controlador</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Sin revelador</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Queda poco revelador</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Puerta abierta</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Demasiado caliente</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Calentando</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Retiene los trabajos nuevos</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Falta la bandeja de papel</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Sin tinta o tóner</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Queda poca tinta o tóner</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Recipiente de tóner residual casi lleno</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Recipiente de tóner residual lleno</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Sin papel</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Atasco de papel</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Queda poco papel</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Se necesita papel</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Deteniéndose</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Fuera de línea</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Tambor agotado</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Tambor casi agotado</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requiere atención</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Bandeja de salida casi llena</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Bandeja de salida llena</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Falta la bandeja de salida</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Apagada</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Memoria de la impresora llena</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Detenida en parte</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Parando</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>No responde</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Sin tóner</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Queda poco tóner</translation>
    </message>
</context>
<context>
    <name>StandardTexts</name>
    <message>
        <source>Letter</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Ejecutivo</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloide</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Doble carta</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Media carta</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Tarjeta postal (Japón)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Tarjeta postal doble (Japón)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Sobre Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Sobre %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Sobre n.º %1</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Bandeja principal</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Bandeja alternativa</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Casete</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Casete %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bandeja %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentación manual</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Bandeja multipropósito</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Alimentador de sobres</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Alimentación manual de sobres</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Bandeja de gran capacidad</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bandeja superior</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bandeja central</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bandeja inferior</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bandeja izquierda</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bandeja derecha</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bandeja lateral</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bandeja trasera</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bandeja del centro</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bandeja para fotos</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bandeja para discos</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Bandeja para postales</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Rollo de papel</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Rollo de papel alternativo</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rollo %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Papel normal</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papel con membrete</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Papel preimpreso</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Papel perforado</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Papel reciclado</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Papel bond</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Papel grueso</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Papel fino</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Papel estucado</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papel para inyección de tinta</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papel de calidad</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Papel de color</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Papel de algodón</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Cartulina</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papel fotográfico</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Papel fotográfico brillante</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papel fotográfico muy brillante</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papel fotográfico semibrillante</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papel fotográfico satinado</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papel fotográfico mate</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Papel continuo</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Papel con pestañas</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Película</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Bandeja de salida superior</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Bandeja de salida central</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Bandeja de salida inferior</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Bandeja de salida izquierda</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Bandeja de salida derecha</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Bandeja de salida del centro</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Bandeja de salida lateral</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Bandeja de salida trasera</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Cara arriba</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Cara abajo</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Apilador %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Apilador</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Buzón %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Mi buzón</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Solo negro, sin grises</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grapar</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Dos grapas</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Tres grapas</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Cosido en el borde</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Cosido a caballete</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforado</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Perforar dos agujeros</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Perforar tres agujeros</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Perforar cuatro agujeros</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Perforar varios agujeros</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Encuadernar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Añadir cubierta</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Desplazar los trabajos</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminar</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegado</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Plegar por la mitad</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Plegado de carta</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Plegado en Z</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Medio plegado en Z</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Plegado en acordeón</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Plegado en ventana</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Doble plegado en ventana</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Plegado paralelo</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>arriba a la izquierda</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>abajo a la izquierda</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>arriba a la derecha</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>abajo a la derecha</translation>
    </message>
    <message>
        <source>left</source>
        <translation>a la izquierda</translation>
    </message>
    <message>
        <source>top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>right</source>
        <translation>a la derecha</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, sin bordes</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Portada antes</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Portada después</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Se necesita una contraseña</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>La impresora %1 pide su contraseña.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>El servidor de impresión %1 pide su contraseña.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Nombre de usuario o contraseña incorrectos. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Dominio:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>kesto::DialogFoot</name>
    <message>
        <source>Sending the job</source>
        <translation>Envío del trabajo</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 está vacío. No hay nada que imprimir.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>El documento</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 es una carpeta. Elija un archivo.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 supera %2, el máximo que se puede imprimir.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>%1 no se puede copiar para imprimirlo: %2</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>El documento no tiene páginas. No hay nada que imprimir.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>El documento está dañado y no se puede mostrar. Es posible que la impresora no pueda imprimirlo.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>El documento está dañado. Es posible que falte una parte.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>El documento está protegido con una contraseña. Introduzca la contraseña para imprimirlo.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>No hay vista previa disponible. Instale cups para verla.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>No hay vista previa disponible porque convertir el documento tarda demasiado.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>No hay vista previa para este tipo de documento.</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentLine</name>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Elegir un documento</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>Abrir el documento tarda demasiado.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>No hay espacio suficiente para una copia del documento.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>El documento está dañado y no se puede abrir.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Contraseña incorrecta. Puede intentarlo una vez más.</translation>
    </message>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>El documento no se puede abrir. Instale qpdf para abrirlo.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Contraseña incorrecta. Puede intentarlo %n vez más.</numerusform>
            <numerusform>Contraseña incorrecta. Puede intentarlo %n veces más.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>the digest of the pass code</source>
        <translation>el resumen del código de acceso</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>el código de acceso</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>la hora del trabajo</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>el código de la carpeta</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>la carpeta</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>el número de usuario</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>el número de cuenta</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>el nombre de usuario</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>el nombre del trabajo</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>no se puede averiguar qué ven los demás usuarios: %1</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>la extensión de gestión de trabajos no tiene panel para el diálogo de impresión</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>el panel no tiene disposición</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>no se encuentra JobHandling.pde junto al programa ni en la carpeta de bibliotecas</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: línea %2: %3</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>no se puede guardar el PPD: %1</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>no se puede obtener el PPD de %1: %2</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>un preajuste no puede guardar el nombre de esta carpeta</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>no hay ningún preajuste «%1»; esta impresora no tiene preajustes</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>no hay ningún preajuste «%1»; esta impresora tiene: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>el preajuste «%1» está dañado y se deja como está</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>los preajustes de esta impresora están dañados y no se han modificado</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>el preajuste «%1» es de otro modelo de impresora, %2</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>no se puede leer la entrada estándar</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: es una carpeta</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>el trabajo se ha detenido</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>la respuesta del servidor de impresión está incompleta</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>la respuesta del servidor de impresión no se puede leer</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>la respuesta del servidor de impresión es demasiado grande</translation>
    </message>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>la búsqueda del servidor de impresión %1 ha tardado demasiado</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>no hay ningún servidor de impresión llamado %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>no se puede conectar con cifrado al servidor de impresión %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>no se puede conectar con el servidor de impresión %1. ¿Está en marcha?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>el servidor de impresión %1 ha dejado de leer el documento</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>el servidor de impresión %1 no ha respondido en %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>el servidor de impresión %1 ha cerrado la conexión</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>el servidor de impresión %1 redirige a otra dirección (estado HTTP %2); no se siguen las redirecciones</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>el servidor de impresión %1 pide una contraseña</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>el servidor de impresión %1 responde: %2 (estado HTTP %3)</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>el servidor de impresión no ha dado número al trabajo</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>no se puede crear un trabajo en «%1»: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>no se puede cancelar el trabajo %1-%2: %3</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>el PPD de %1 es demasiado grande</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>el servidor de impresión ha rechazado el trabajo: %1</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>no se ha podido imprimir %1: %2</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>no se puede abrir la impresora «%1»: %2</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>el servidor de impresión ha finalizado el trabajo: %1</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>el nombre de un preajuste puede tener como máximo %1 caracteres; elija uno más corto</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>no se pueden leer los preajustes de esta impresora: %1</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>las opciones del trabajo</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>la respuesta del servidor de impresión no contiene ningún trabajo</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>no se pueden recordar las carpetas: %1</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>no se puede escribir la respuesta de la impresora en la carpeta temporal. ¿Está lleno el disco?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>la respuesta de la impresora no es una lista de carpetas</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>esta impresora no acepta este tipo de archivo (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>«%1» no acepta trabajos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>«%1» no acepta trabajos: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>no hay ninguna impresora llamada «%1»</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>esta impresora no acepta este tipo de archivo</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Gestión de trabajos para el modelo %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>todavía no se ha imprimido nada</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>el servidor de impresión ya no conoce el trabajo</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>no se puede cancelar el trabajo %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>nombre de usuario o contraseña incorrectos para la impresora «%1»</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>nombre de usuario o contraseña incorrectos para el servidor de impresión %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>la impresora «%1» pide una contraseña</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>no se puede configurar la impresora «%1»: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>la impresora no responde</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>la dirección es desconocida</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>conexión rechazada</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>la conexión se cerró</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>no hubo respuesta a tiempo</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>la respuesta no se puede leer</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>no se puede acceder a la impresora</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>no hay lista de carpetas de %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: una carpeta, no un archivo PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>no hay ninguna impresora predeterminada; elija una con -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>pertenece a otra impresora</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>no se puede reiniciar el trabajo %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>no se puede cambiar el trabajo %1: %2</translation>
    </message>
</context>
<context>
    <name>kesto::HoldControl</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>At</source>
        <translation>A las</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Introduzca una hora, por ejemplo 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Esperando a la impresora</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Esperando a otro trabajo</translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Retenido: la impresora pide una contraseña</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Retenido hasta la hora de imprimir</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Retenido hasta que se libere</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Imprimiendo la página %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Imprimiendo la página %1 de %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Detenido: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Detenido: la impresora está en pausa</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Espera en %1 hasta que introduzca allí su código de acceso</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Espera en %1 hasta que lo libere allí</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Impreso</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Impreso y guardado en %1 para volver a imprimirlo</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Se ha impreso una copia; las demás esperan en %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Cancelado por %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Cancelado en la impresora</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Detenido por el servidor de impresión</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>No se ha impreso</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>No se sabe si el trabajo se ha impreso</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>En espera de %n trabajo más</numerusform>
            <numerusform>En espera de otros %n trabajos</numerusform>
        </translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Conectando con la impresora</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>Un archivo PDF conserva sus páginas tal como son. Solo se pueden elegir las páginas y su orden.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>No hay vista previa porque dibujar la página tarda demasiado.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>No hay vista previa para este tipo de documento.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>No hay vista previa. Instale poppler-utils para verla.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>No hay vista previa porque este documento PDF no se puede leer.</translation>
    </message>
</context>
<context>
    <name>kesto::PageNavigator</name>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
</context>
<context>
    <name>kesto::PagesControl</name>
    <message>
        <source>All pages</source>
        <translation>Todas las páginas</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Páginas seleccionadas</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>El documento termina en la página %1. Páginas que se imprimirán: %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PanelPane</name>
    <message>
        <source>Lock %1</source>
        <translation>Bloquear %1</translation>
    </message>
    <message>
        <source>Enter the printer&apos;s address to get the names of its folders.</source>
        <translation>Introduzca la dirección de la impresora para obtener los nombres de sus carpetas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>«%1» no es una dirección. Introduzca el nombre o la dirección IP de la impresora.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Esta impresora no archiva documentos, por lo que la elección de una carpeta no tiene efecto.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Bloqueado: este dato se recuerda para esta impresora.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Desbloqueado: este dato vale solo para este trabajo.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Tamaño personalizado</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Introduzca un ancho entre %1 y %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Introduzca un alto entre %1 y %2 %3.</translation>
    </message>
</context>
<context>
    <name>kesto::PasswordDialog</name>
    <message>
        <source>Protected document</source>
        <translation>Documento protegido</translation>
    </message>
    <message>
        <source>%1 is protected by a password. Enter the password to print the document.</source>
        <translation>%1 está protegido con una contraseña. Introduzca la contraseña para imprimir el documento.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>El documento</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>kesto::PdfSaving</name>
    <message>
        <source>Saving takes too long.</source>
        <translation>Guardar tarda demasiado.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>No hay espacio suficiente.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>No hay ninguna página seleccionada.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Instale qpdf para guardar archivos PDF.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>%1 no se puede guardar. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizada</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Introduzca un porcentaje entre %1 y %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Guardar como preajuste…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Eliminar preajuste</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Incluir los códigos de acceso</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Último usado</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>No hay preajustes</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Preajustes: %1</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>¿Reemplazar el preajuste «%1»?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Hoja %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Hoja %1 de %2, anverso</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Hoja %1 de %2, reverso</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Total: 1 hoja de papel</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>No hay ninguna página seleccionada.</translation>
    </message>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Solo los documentos PDF se pueden guardar como PDF.</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 página</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n página</numerusform>
            <numerusform>%1, %n páginas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Total: %n hoja de papel</numerusform>
            <numerusform>Total: %n hojas de papel</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impresora:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Ningún documento</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Imprimir en %1</translation>
    </message>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Conectando con la impresora…</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Esta impresora no admite %1. El trabajo se imprimirá sin ello.</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Ningún documento seleccionado</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Leyendo el documento…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>El documento es largo. El resto se lee al imprimir.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>No hay vista previa. La aplicación prepara las páginas después de pulsar «Imprimir».</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Elegir un documento</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>El trabajo %1 se ha enviado a %2.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>El trabajo no se ha impreso. %1</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Elija un documento que imprimir.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Cancelando el trabajo…</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>No se retiene</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Guarda las páginas seleccionadas en un archivo.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Guardado como %1.</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Esta impresora no admite %1 del preajuste. El resto se ha aplicado.</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Trabajo %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>No se pudieron recordar sus datos.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Volver a imprimir</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Cancelar el trabajo</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 carpeta de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n carpeta de %1</numerusform>
            <numerusform>%n carpetas de %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>El servidor de impresión ya no tiene esta impresora. Es posible que se haya eliminado.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modelo:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ubicación:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Mensaje:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Nivel desconocido</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Buscando impresoras…</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Ninguna impresora</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Escriba el nombre de una impresora.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Pulse Intro para elegir %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Coinciden varias impresoras. Elija una de ellas.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>No hay ninguna impresora llamada «%1».</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Detalles de la impresora</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>No acepta trabajos: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>No acepta trabajos</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pausa: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 trabajo en espera</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n trabajo en espera</numerusform>
            <numerusform>%n trabajos en espera</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>En la red</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Ninguna impresora acepta trabajos. Compruebe las impresoras en la configuración del sistema y vuelva a intentarlo.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>¿Quién puede ver este trabajo?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Los demás usuarios pueden ver que existe este trabajo, pero ninguno de sus detalles.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Los demás usuarios pueden ver %1. Para ocultarlo, añada estas líneas a la política «%2» del servidor de impresión:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
</context>
</TS>
