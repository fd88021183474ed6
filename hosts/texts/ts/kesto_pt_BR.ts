<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CommandTexts</name>
    <message>
        <source>must be %1 or %2</source>
        <translation>deve ser %1 ou %2</translation>
    </message>
    <message>
        <source>unexpected argument</source>
        <translation>argumento inesperado</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opção desconhecida %1</translation>
    </message>
    <message>
        <source>%1 requires a value</source>
        <translation>%1 requer um valor</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 não aceita valor</translation>
    </message>
    <message>
        <source>%1 cannot be used with %2</source>
        <translation>%1 não pode ser usada com %2</translation>
    </message>
    <message>
        <source>Try &apos;%1 --help&apos;.</source>
        <translation>Tente “%1 --help”.</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 requer %2</translation>
    </message>
    <message>
        <source>cannot write standard output</source>
        <translation>não foi possível gravar na saída padrão</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>a linha é longa demais</translation>
    </message>
    <message>
        <source>the line is not UTF-8</source>
        <translation>a linha não está em UTF-8</translation>
    </message>
    <message>
        <source>the line is empty</source>
        <translation>a linha está vazia</translation>
    </message>
    <message>
        <source>no terminal to ask at</source>
        <translation>não há terminal em que perguntar</translation>
    </message>
    <message>
        <source>%1: </source>
        <comment>a prompt</comment>
        <translation>%1: </translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompido</translation>
    </message>
    <message>
        <source>must be between 0.1 and 3600 seconds</source>
        <translation>deve estar entre 0.1 e 3600 segundos</translation>
    </message>
    <message>
        <source>copies must be between %1 and %2</source>
        <translation>o número de cópias deve estar entre %1 e %2</translation>
    </message>
    <message>
        <source>priority must be between %1 and %2</source>
        <translation>a prioridade deve estar entre %1 e %2</translation>
    </message>
    <message>
        <source>the seconds must be between %1 and %2</source>
        <translation>os segundos devem estar entre %1 e %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 foi informado duas vezes</translation>
    </message>
    <message>
        <source>give up on a server that is silent this long (default: 5)</source>
        <translation>desistir de um servidor calado por este tempo (padrão: 5)</translation>
    </message>
    <message>
        <source>print this text, or the version</source>
        <translation>mostrar este texto, ou a versão</translation>
    </message>
    <message>
        <source>Usage: %1 [OPTION]... [FILE]...</source>
        <translation>Uso: %1 [OPÇÃO]... [ARQUIVO]...</translation>
    </message>
    <message>
        <source>as of the usual print command</source>
        <translation>como no comando de impressão usual</translation>
    </message>
</context>
<context>
    <name>DimmingReasons</name>
    <message>
        <source>The job is not held on the printer. Turn on Retention first.</source>
        <translation>O trabalho não é retido na impressora. Ative primeiro “Retenção”.</translation>
    </message>
    <message>
        <source>A quick file has no pass code.</source>
        <translation>Um arquivamento rápido não tem código de acesso.</translation>
    </message>
    <message>
        <source>Only a custom folder needs a name. Choose Custom folder first.</source>
        <translation>Somente uma pasta personalizada precisa de um nome. Escolha primeiro “Pasta personalizada”.</translation>
    </message>
    <message>
        <source>Only a custom folder or a protected folder has a pass code.</source>
        <translation>Somente uma pasta personalizada ou protegida tem código de acesso.</translation>
    </message>
    <message>
        <source>This printer identifies you by user number, not by login name.</source>
        <translation>Esta impressora identifica você pelo número de usuário, não pelo nome de login.</translation>
    </message>
    <message>
        <source>This entry is locked and remembered for this printer. Open the padlock to change it.</source>
        <translation>Este dado está bloqueado e memorizado para esta impressora. Abra o cadeado para alterá-lo.</translation>
    </message>
</context>
<context>
    <name>FieldBinder</name>
    <message>
        <source>Hide the digits</source>
        <translation>Ocultar os dígitos</translation>
    </message>
    <message>
        <source>Show the digits</source>
        <translation>Mostrar os dígitos</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Choose a printer</source>
        <translation>Escolher uma impressora</translation>
    </message>
    <message>
        <source>Choose a printer from the list. When the list is long, type a part of the printer&apos;s name and press Enter. The line below the list says whether the printer is ready.</source>
        <translation>Escolha uma impressora da lista. Quando a lista for longa, digite parte do nome da impressora e pressione Enter. A linha abaixo da lista informa se a impressora está pronta.</translation>
    </message>
    <message>
        <source>Print some of the pages</source>
        <translation>Imprimir algumas das páginas</translation>
    </message>
    <message>
        <source>Choose Selected pages and enter page numbers or ranges, for example 1-3, 5. A range may be open: 5- prints page 5 and all pages after it.</source>
        <translation>Escolha “Páginas selecionadas” e digite números ou intervalos de páginas, por exemplo 1-3, 5. Um intervalo pode ficar aberto: 5- imprime a página 5 e todas as seguintes.</translation>
    </message>
    <message>
        <source>Print on both sides</source>
        <translation>Imprimir nos dois lados</translation>
    </message>
    <message>
        <source>Choose Long edge for pages that turn like those of a book, or Short edge for pages that turn like those of a notepad.</source>
        <translation>Escolha “Borda longa” para páginas que viram como as de um livro ou “Borda curta” para páginas que viram como as de um bloco de notas.</translation>
    </message>
    <message>
        <source>See what will be printed</source>
        <translation>Ver o que será impresso</translation>
    </message>
    <message>
        <source>The preview shows the sheets of paper as they will leave the printer. Turn the pages with the arrows below it or with Page Up and Page Down, and enlarge them with Ctrl and the mouse wheel.</source>
        <translation>A visualização mostra as folhas de papel como sairão da impressora. Vire as páginas com as setas abaixo dela ou com Page Up e Page Down e amplie-as com Ctrl e a roda do mouse.</translation>
    </message>
    <message>
        <source>Save the pages as a PDF file</source>
        <translation>Salvar as páginas como arquivo PDF</translation>
    </message>
    <message>
        <source>Hold a job on the printer with a pass code</source>
        <translation>Reter um trabalho na impressora com um código de acesso</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention and enter a pass code of up to 8 digits. The job waits in the printer until someone enters the pass code there. Hold after printing keeps the job after it is printed. Sample print prints one copy and holds the others.</source>
        <translation>Em “Gerenciamento de trabalhos”, ative “Retenção” e digite um código de acesso de até 8 dígitos. O trabalho espera na impressora até que alguém digite o código nela. “Reter após imprimir” mantém o trabalho depois de impresso. “Impressão de amostra” imprime uma cópia e retém as outras.</translation>
    </message>
    <message>
        <source>Say who you are</source>
        <translation>Informar quem você é</translation>
    </message>
    <message>
        <source>Some printers ask who is printing. Under User and account, enter your user number, or your login name and password.</source>
        <translation>Algumas impressoras perguntam quem está imprimindo. Em “Usuário e conta”, digite seu número de usuário ou seu nome de login e sua senha.</translation>
    </message>
    <message>
        <source>Use an entry again</source>
        <translation>Usar um dado novamente</translation>
    </message>
    <message>
        <source>Close the padlock next to an entry. The entry is then remembered for this printer. To change it, open the padlock.</source>
        <translation>Feche o cadeado ao lado de um dado. O dado fica memorizado para esta impressora. Para alterá-lo, abra o cadeado.</translation>
    </message>
    <message>
        <source>Choose a folder on the printer</source>
        <translation>Escolher uma pasta na impressora</translation>
    </message>
    <message>
        <source>Save your settings as a preset</source>
        <translation>Salvar as configurações como predefinição</translation>
    </message>
    <message>
        <source>Press Presets and choose Save as preset. To use the settings again, choose the preset there. The pass codes are saved only if you include them.</source>
        <translation>Pressione “Predefinições” e escolha “Salvar como predefinição”. Para usar as configurações novamente, escolha ali a predefinição. Os códigos de acesso só são salvos se você os incluir.</translation>
    </message>
    <message>
        <source>See what others can see of a job</source>
        <translation>Ver o que os outros podem ver de um trabalho</translation>
    </message>
    <message>
        <source>Cancel a job</source>
        <translation>Cancelar um trabalho</translation>
    </message>
    <message>
        <source>Use the keyboard</source>
        <translation>Usar o teclado</translation>
    </message>
    <message>
        <source>Alt and an underlined letter go to a control; Alt, Shift and the letter go to the padlock next to it. Enter prints, Escape cancels, and F1 opens this help. Ctrl+R shows the digits of a pass code while the cursor is in it.</source>
        <translation>Alt e uma letra sublinhada levam a um controle; Alt, Shift e a letra levam ao cadeado ao lado dele. Enter imprime, Esc cancela e F1 abre esta ajuda. Ctrl+R mostra os dígitos de um código de acesso enquanto o cursor está nele.</translation>
    </message>
    <message>
        <source>Help for printing</source>
        <translation>Ajuda para impressão</translation>
    </message>
    <message>
        <source>Print several pages on a sheet</source>
        <translation>Imprimir várias páginas em uma folha</translation>
    </message>
    <message>
        <source>Under Layout, choose the number of Pages per sheet, their order and a border. Booklet, on a printer that makes booklets, arranges the pages so that the folded sheets can be read like a book.</source>
        <translation>Em “Layout”, escolha o número de páginas por folha, a ordem delas e uma borda. Em uma impressora que faz livretos, “Livreto” organiza as páginas para que as folhas dobradas possam ser lidas como um livro.</translation>
    </message>
    <message>
        <source>Fit the pages to the paper</source>
        <translation>Ajustar as páginas ao papel</translation>
    </message>
    <message>
        <source>Under Layout, Scaling decides what happens to pages that are larger or smaller than the paper. Fit to paper shows them whole, Fill paper leaves no margin and may cut off edges, and Actual size leaves them as they are. The percentage of Custom counts for images.</source>
        <translation>Em “Layout”, “Escala” decide o que acontece com páginas maiores ou menores que o papel. “Ajustar ao papel” mostra-as inteiras, “Preencher o papel” não deixa margem e pode cortar bordas, e “Tamanho real” deixa-as como são. A porcentagem de “Personalizada” vale para imagens.</translation>
    </message>
    <message>
        <source>Choose when to print</source>
        <translation>Escolher quando imprimir</translation>
    </message>
    <message>
        <source>Under Job, Print holds the job on the print server until a time, or, with On hold, until you release it in the system&apos;s list of print jobs. Of the jobs that wait, the one with the highest priority is printed first.</source>
        <translation>Em “Trabalho”, “Imprimir” retém o trabalho no servidor de impressão até um horário ou, com “Em espera”, até você liberá-lo na lista de trabalhos de impressão do sistema. Dos trabalhos que aguardam, o de maior prioridade é impresso primeiro.</translation>
    </message>
    <message>
        <source>Add cover sheets and billing information</source>
        <translation>Adicionar folhas de rosto e informações de cobrança</translation>
    </message>
    <message>
        <source>Under Job, choose a cover sheet that is printed before or after the document. Billing information, such as the number of a project, is kept with the job in the records of the print server.</source>
        <translation>Em “Trabalho”, escolha uma folha de rosto que é impressa antes ou depois do documento. As informações de cobrança, como o número de um projeto, ficam guardadas com o trabalho nos registros do servidor de impressão.</translation>
    </message>
    <message>
        <source>Find another option of the printer</source>
        <translation>Encontrar outra opção da impressora</translation>
    </message>
    <message>
        <source>More options has all other options of the printer. Type a part of a name into the filter to see only the options that have it.</source>
        <translation>“Mais opções” contém todas as outras opções da impressora. Digite parte de um nome no filtro para ver somente as opções que a contêm.</translation>
    </message>
    <message>
        <source>Choose Save as PDF in the list of printers, and press Save. The file has the pages that you selected. Only PDF documents can be saved, and only their pages and the order of the pages can be chosen.</source>
        <translation>Escolha “Salvar como PDF” na lista de impressoras e pressione “Salvar”. O arquivo contém as páginas que você selecionou. Somente documentos PDF podem ser salvos, e só é possível escolher as páginas e a ordem delas.</translation>
    </message>
    <message>
        <source>Print a document that is protected by a password</source>
        <translation>Imprimir um documento protegido por senha</translation>
    </message>
    <message>
        <source>When you press Print, the dialog asks for the password of the document. It prints a copy without the password, which only you can read and which is deleted afterwards.</source>
        <translation>Quando você pressiona “Imprimir”, o diálogo pede a senha do documento. Ele imprime uma cópia sem a senha, que só você pode ler e que é excluída depois.</translation>
    </message>
    <message>
        <source>Under Job Handling, turn on Retention. Under Document filing, choose Custom folder and enter the name of a folder. Get folder names asks the printer for its folders, so that you can choose one from the list.</source>
        <translation>Em “Gerenciamento de trabalhos”, ative “Retenção”. Em “Arquivamento de documentos”, escolha “Pasta personalizada” e digite o nome de uma pasta. “Obter nomes das pastas” pergunta à impressora quais são as suas pastas, para que você possa escolher uma na lista.</translation>
    </message>
    <message>
        <source>In the Summary, press Who can see this job? The answer says which details of a job the print server shows to other users, and how to hide them.</source>
        <translation>No resumo, pressione “Quem pode ver este trabalho?”. A resposta informa quais detalhes de um trabalho o servidor de impressão mostra a outros usuários e como ocultá-los.</translation>
    </message>
    <message>
        <source>Press Cancel while the job is being sent. While the dialog follows the job, press Cancel job; Print again sends a job once more that has failed. After the dialog has closed, use the system&apos;s list of print jobs.</source>
        <translation>Pressione “Cancelar” enquanto o trabalho está sendo enviado. Enquanto o diálogo acompanha o trabalho, pressione “Cancelar trabalho”; “Imprimir novamente” envia mais uma vez um trabalho que falhou. Depois que o diálogo for fechado, use a lista de trabalhos de impressão do sistema.</translation>
    </message>
</context>
<context>
    <name>JobOptions</name>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Only print</source>
        <translation>Imprimir somente</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamanho do papel</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Frente e verso</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Fonte do papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de saída</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grampeamento</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perfuração</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Dobra</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por folha</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livreto</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordem das páginas</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Borda</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridade</translation>
    </message>
    <message>
        <source>Billing information</source>
        <translation>Informações de cobrança</translation>
    </message>
    <message>
        <source>Cover sheets</source>
        <translation>Folhas de rosto</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Borda longa</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Borda curta</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas as páginas</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>Páginas ímpares</translation>
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
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paisagem</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Paisagem invertida</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Retrato invertido</translation>
    </message>
    <message>
        <source>Left to right, top to bottom</source>
        <translation>Esquerda para direita, cima para baixo</translation>
    </message>
    <message>
        <source>Left to right, bottom to top</source>
        <translation>Esquerda para direita, baixo para cima</translation>
    </message>
    <message>
        <source>Right to left, top to bottom</source>
        <translation>Direita para esquerda, cima para baixo</translation>
    </message>
    <message>
        <source>Right to left, bottom to top</source>
        <translation>Direita para esquerda, baixo para cima</translation>
    </message>
    <message>
        <source>Top to bottom, left to right</source>
        <translation>Cima para baixo, esquerda para direita</translation>
    </message>
    <message>
        <source>Top to bottom, right to left</source>
        <translation>Cima para baixo, direita para esquerda</translation>
    </message>
    <message>
        <source>Bottom to top, left to right</source>
        <translation>Baixo para cima, esquerda para direita</translation>
    </message>
    <message>
        <source>Bottom to top, right to left</source>
        <translation>Baixo para cima, direita para esquerda</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Linha simples</translation>
    </message>
    <message>
        <source>Thick single line</source>
        <translation>Linha simples grossa</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Linha dupla</translation>
    </message>
    <message>
        <source>Thick double line</source>
        <translation>Linha dupla grossa</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>Ajustar ao papel</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>Fill paper</source>
        <translation>Preencher o papel</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>On hold</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Média</translation>
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
        <translation>Padrão</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Não classificado</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classificado</translation>
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
        <translation>Ultrassecreto</translation>
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
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Às %1</translation>
    </message>
    <message>
        <source>Two-sided printing is not possible on %1.</source>
        <translation>Não é possível imprimir frente e verso em %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not possible with %3 &quot;%4&quot;.</source>
        <translation>%1 “%2” não é possível com %3 “%4”.</translation>
    </message>
    <message>
        <source>Turn off two-sided</source>
        <translation>Desativar frente e verso</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Definir %1 como %2</translation>
    </message>
    <message>
        <source>Pages %1</source>
        <translation>Páginas %1</translation>
    </message>
    <message>
        <source>1 copy</source>
        <translation>1 cópia</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n cópia</numerusform>
            <numerusform>%n cópias</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter page numbers or ranges, for example 1-3, 5.</source>
        <translation>Digite números ou intervalos de páginas, por exemplo 1-3, 5.</translation>
    </message>
    <message>
        <source>The document ends at page %1. Enter page numbers up to %1.</source>
        <translation>O documento termina na página %1. Digite números de página até %1.</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Página atual</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabamento</translation>
    </message>
</context>
<context>
    <name>LpTexts</name>
    <message>
        <source>%1: this printer does not offer it</source>
        <translation>%1: esta impressora não oferece isso</translation>
    </message>
    <message>
        <source>this printer does not ask who prints</source>
        <translation>esta impressora não pergunta quem imprime</translation>
    </message>
    <message>
        <source>%1 must be %2</source>
        <translation>%1 deve ter %2</translation>
    </message>
    <message numerus="yes">
        <source>at most %n digits</source>
        <translation>
            <numerusform>no máximo %n dígito</numerusform>
            <numerusform>no máximo %n dígitos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %n characters</source>
        <translation>
            <numerusform>no máximo %n caractere</numerusform>
            <numerusform>no máximo %n caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be used with --folder quick</source>
        <translation>%1 não pode ser usada com --folder quick</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME</source>
        <translation>%1 requer --folder NAME</translation>
    </message>
    <message>
        <source>%1 requires --folder NAME of a folder with a pass code or of a custom folder</source>
        <translation>%1 requer --folder NAME de uma pasta com código de acesso ou de uma pasta personalizada</translation>
    </message>
    <message>
        <source>%1 cannot be used with a user number</source>
        <translation>%1 não pode ser usada com um número de usuário</translation>
    </message>
    <message>
        <source>Pass code</source>
        <translation>Código de acesso</translation>
    </message>
    <message>
        <source>pass code of the held job</source>
        <translation>código de acesso do trabalho retido</translation>
    </message>
    <message>
        <source>quick, main or a folder name</source>
        <translation>quick, main ou o nome de uma pasta</translation>
    </message>
    <message>
        <source>Folder pass code</source>
        <translation>Código da pasta</translation>
    </message>
    <message>
        <source>pass code of the folder</source>
        <translation>código da pasta</translation>
    </message>
    <message>
        <source>login name</source>
        <translation>nome de login</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>password of the login name</source>
        <translation>senha do nome de login</translation>
    </message>
    <message>
        <source>user number instead of a login</source>
        <translation>número de usuário em vez de login</translation>
    </message>
    <message>
        <source>account number</source>
        <translation>número da conta</translation>
    </message>
    <message>
        <source>user name at the printer</source>
        <translation>nome de usuário na impressora</translation>
    </message>
    <message>
        <source>job name at the printer</source>
        <translation>nome do trabalho na impressora</translation>
    </message>
    <message>
        <source>the user number is missing; set it with %1</source>
        <translation>falta o número de usuário; informe-o com %1</translation>
    </message>
    <message>
        <source>the login name is missing; set it with %1</source>
        <translation>falta o nome de login; informe-o com %1</translation>
    </message>
    <message>
        <source>-p is -q, and -w is -m; the others have no effect</source>
        <translation>-p é -q, e -w é -m; as outras não têm efeito</translation>
    </message>
    <message>
        <source>stand for a queue where no job is sent</source>
        <translation>fazem as vezes de uma fila quando nada é enviado</translation>
    </message>
    <message>
        <source>print the job&apos;s settings and send nothing; keep only what --remember, --forget or --save-preset ask for</source>
        <translation>mostrar as configurações do trabalho sem enviar nada; guardar somente o que --remember, --forget ou --save-preset pedem</translation>
    </message>
    <message>
        <source>print the panel&apos;s summary, not the settings</source>
        <translation>mostrar o resumo do painel, não as configurações</translation>
    </message>
    <message>
        <source>list the queues, or those that offer Job Handling, and the printers on the network</source>
        <translation>listar as filas, ou as que oferecem o gerenciamento de trabalhos, e as impressoras da rede</translation>
    </message>
    <message>
        <source>fetch, keep and list the printer&apos;s folders</source>
        <translation>obter, memorizar e listar as pastas da impressora</translation>
    </message>
    <message>
        <source>show what other users of the server see of a job&apos;s options, and how to hide it</source>
        <translation>mostrar o que outros usuários do servidor veem das opções de um trabalho, e como ocultar isso</translation>
    </message>
    <message>
        <source>print what becomes of the job until it is printed or held at the printer; ends with 1 if it is not, or with 4 if it still waits after SECONDS</source>
        <translation>mostrar o que acontece com o trabalho até ser impresso ou retido na impressora; caso contrário termina com 1, ou com 4 se ainda aguarda após SECONDS</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>mostrar JSON</translation>
    </message>
    <message>
        <source>the password that the server or printer asks for</source>
        <translation>a senha que o servidor ou a impressora pede</translation>
    </message>
    <message>
        <source>hold the job: unprinted, after printing it, or after a sample of it</source>
        <translation>reter o trabalho: sem imprimi-lo, depois de imprimi-lo ou depois de uma amostra</translation>
    </message>
    <message>
        <source>do not hold the job</source>
        <translation>não reter o trabalho</translation>
    </message>
    <message>
        <source>take X (pin, folder-pin, password) from the first line of a file or of standard input, &quot;-&quot;, or ask at the terminal: other users may see a command line</source>
        <translation>ler X (pin, folder-pin, password) da primeira linha de um arquivo ou da entrada padrão, “-”, ou perguntar no terminal: outros usuários podem ver uma linha de comando</translation>
    </message>
    <message>
        <source>keep the entries X for this queue&apos;s next jobs</source>
        <translation>memorizar os dados X para os próximos trabalhos desta fila</translation>
    </message>
    <message>
        <source>keep them no longer</source>
        <translation>não memorizá-los mais</translation>
    </message>
    <message>
        <source>start from a preset of this queue</source>
        <translation>partir de uma predefinição desta fila</translation>
    </message>
    <message>
        <source>keep the settings as a preset; the pass codes only together with --with-codes</source>
        <translation>salvar as configurações como predefinição; os códigos de acesso somente com --with-codes</translation>
    </message>
    <message>
        <source>do this alone, for -d or --ppd</source>
        <translation>fazer somente isto, para -d ou --ppd</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>an entry and its limit</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Prints files, or standard input, with a printer&apos;s Job Handling.</source>
        <translation>Imprime arquivos, ou a entrada padrão, com o gerenciamento de trabalhos de uma impressora.</translation>
    </message>
    <message>
        <source>Ends with 0 done, 1 failed, 2 wrong usage, 3 refused by the panel, 4 waiting.</source>
        <translation>Termina com 0 concluído, 1 falha, 2 uso incorreto, 3 recusado pelo painel, 4 aguardando.</translation>
    </message>
    <message>
        <source>not waiting any longer: %1</source>
        <translation>a espera terminou: %1</translation>
    </message>
    <message>
        <source>on the network</source>
        <translation>na rede</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>pronta</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>parada</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>imprimindo</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>não aceita trabalhos</translation>
    </message>
    <message>
        <source>1 job</source>
        <translation>1 trabalho</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n trabalho</numerusform>
            <numerusform>%n trabalhos</numerusform>
        </translation>
    </message>
    <message>
        <source>this printer has no folder list</source>
        <translation>esta impressora não tem lista de pastas</translation>
    </message>
    <message>
        <source>the printer&apos;s address is unknown; set it with --address</source>
        <translation>o endereço da impressora é desconhecido; informe-o com --address</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address</source>
        <translation>“%1” não é um endereço</translation>
    </message>
    <message>
        <source>%1: other users see none of a job&apos;s options.</source>
        <translation>%1: os outros usuários não veem nenhuma opção de um trabalho.</translation>
    </message>
    <message>
        <source>%1: other users see of a job %2.</source>
        <translation>%1: os outros usuários veem de um trabalho: %2.</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in the printer&apos;s policy:</source>
        <translation>Um administrador oculta isso em cupsd.conf, na política da impressora:</translation>
    </message>
    <message>
        <source>An administrator closes this in cupsd.conf, in &lt;Policy %1&gt;:</source>
        <translation>Um administrador oculta isso em cupsd.conf, em &lt;Policy %1&gt;:</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloqueada</translation>
    </message>
    <message>
        <source>--folder has no effect: this printer files no documents</source>
        <translation>--folder não tem efeito: esta impressora não arquiva documentos</translation>
    </message>
    <message>
        <source>cannot remember the entries: %1</source>
        <translation>não foi possível memorizar os dados: %1</translation>
    </message>
    <message>
        <source>the job was sent, but: %1</source>
        <translation>o trabalho foi enviado, mas: %1</translation>
    </message>
    <message>
        <source>a raw job bypasses the driver, and Job Handling with it</source>
        <translation>um trabalho bruto (raw) contorna o driver e, com ele, o gerenciamento de trabalhos</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; does not offer Job Handling</source>
        <translation>a impressora “%1” não oferece o gerenciamento de trabalhos</translation>
    </message>
    <message>
        <source>-m is ignored: it goes with a new job</source>
        <translation>-m é ignorada: vale para um trabalho novo</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>aviso: %1</translation>
    </message>
    <message>
        <source>-i changes a job that was already sent; leave out the files</source>
        <translation>-i altera um trabalho já enviado; não informe arquivos</translation>
    </message>
    <message>
        <source>-i changes a job where it is; leave out -d and --ppd</source>
        <translation>-i altera um trabalho onde ele está; não informe -d nem --ppd</translation>
    </message>
    <message>
        <source>-i cannot change the Job Handling of a job that was already sent</source>
        <translation>-i não pode alterar o gerenciamento de um trabalho já enviado</translation>
    </message>
    <message>
        <source>--wait requires a job to print</source>
        <translation>--wait requer um trabalho a imprimir</translation>
    </message>
    <message>
        <source>a list cannot be combined with a job&apos;s options</source>
        <translation>uma lista não pode ser combinada com as opções de um trabalho</translation>
    </message>
    <message>
        <source>no printer is given; set it with -d or --ppd</source>
        <translation>nenhuma impressora informada; escolha-a com -d ou --ppd</translation>
    </message>
    <message>
        <source>--ppd requires --dry-run or --folders</source>
        <translation>--ppd requer --dry-run ou --folders</translation>
    </message>
    <message>
        <source>only one entry can be read from standard input</source>
        <translation>somente um dado pode ser lido da entrada padrão</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>não deve estar vazio</translation>
    </message>
    <message>
        <source>must be a time such as 18:30 (UTC), hold, immediate, resume, restart or a keyword of the print server such as evening</source>
        <translation>deve ser uma hora como 18:30 (UTC), hold, immediate, resume, restart ou uma palavra-chave do servidor de impressão como evening</translation>
    </message>
    <message>
        <source>must be a job such as 12 or QUEUE-12</source>
        <translation>deve ser um trabalho como 12 ou QUEUE-12</translation>
    </message>
    <message>
        <source>%1 is ignored: %2</source>
        <translation>%1 é ignorada: %2</translation>
    </message>
    <message>
        <source>CUPS has no forms</source>
        <translation>o CUPS não tem formulários</translation>
    </message>
    <message>
        <source>CUPS has no modes; use -o</source>
        <translation>o CUPS não tem modos; use -o</translation>
    </message>
    <message>
        <source>the character set is always UTF-8</source>
        <translation>o conjunto de caracteres é sempre UTF-8</translation>
    </message>
    <message>
        <source>the print server detects the type; use -o document-format=TYPE</source>
        <translation>o servidor de impressão detecta o tipo; use -o document-format=TYPE</translation>
    </message>
    <message>
        <source>--remember and --forget cannot both name %1</source>
        <translation>--remember e --forget não podem ambas citar %1</translation>
    </message>
    <message>
        <source>use only one of -i, --dry-run, --list, --folders, --check, --list-presets and --delete-preset</source>
        <translation>use somente uma das opções -i, --dry-run, --list, --folders, --check, --list-presets e --delete-preset</translation>
    </message>
    <message>
        <source>Wrong password. Password of %1 for %2</source>
        <translation>Senha incorreta. Senha de %1 para %2</translation>
    </message>
    <message>
        <source>Password of %1 for %2</source>
        <translation>Senha de %1 para %2</translation>
    </message>
    <message>
        <source>%1; set it with --server-password-file</source>
        <translation>%1; informe-a com --server-password-file</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB, %3 %</source>
        <translation>enviando o documento %1: %2 MiB, %3%</translation>
    </message>
    <message>
        <source>sending document %1: %2 MiB</source>
        <translation>enviando o documento %1: %2 MiB</translation>
    </message>
    <message>
        <source>change a job that was sent: -H, -n, -o, -P, -q, -t</source>
        <translation>alterar um trabalho já enviado: -H, -n, -o, -P, -q, -t</translation>
    </message>
    <message>
        <source>the password in the file is not sent to &quot;%1&quot;, which is a printer on the network and not set up on the print server</source>
        <translation>a senha do arquivo não é enviada para “%1”, que é uma impressora da rede e não está configurada no servidor de impressão</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not set up on the print server; using the printer on the network: %2</source>
        <translation>“%1” não está configurada no servidor de impressão; usando a impressora da rede: %2</translation>
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
        <translation>nenhuma impressora disponível</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>não foi possível gravar %1</translation>
    </message>
    <message>
        <source>open this section</source>
        <translation>abrir esta seção</translation>
    </message>
    <message>
        <source>save a picture of the dialog, and exit</source>
        <translation>salvar uma imagem do diálogo e sair</translation>
    </message>
    <message>
        <source>print how long the start took, and exit</source>
        <translation>mostrar quanto demorou o início e sair</translation>
    </message>
    <message>
        <source>Shows the print dialog for files, or for standard input.</source>
        <translation>Mostra o diálogo de impressão para arquivos, ou para a entrada padrão.</translation>
    </message>
    <message>
        <source>Ends with 0 sent, 1 not sent, 2 wrong usage.</source>
        <translation>Termina com 0 enviado, 1 não enviado, 2 uso incorreto.</translation>
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
        <translation>Tampa aberta</translation>
    </message>
    <message>
        <source>Driver missing</source>
        <translation>Driver ausente</translation>
    </message>
    <message>
        <source>Out of developer</source>
        <translation>Sem revelador</translation>
    </message>
    <message>
        <source>Developer low</source>
        <translation>Pouco revelador</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>Porta aberta</translation>
    </message>
    <message>
        <source>Too hot</source>
        <translation>Quente demais</translation>
    </message>
    <message>
        <source>Warming up</source>
        <translation>Aquecendo</translation>
    </message>
    <message>
        <source>Holding new jobs</source>
        <translation>Retendo novos trabalhos</translation>
    </message>
    <message>
        <source>Paper tray missing</source>
        <translation>Bandeja de papel ausente</translation>
    </message>
    <message>
        <source>Out of ink or toner</source>
        <translation>Sem tinta ou toner</translation>
    </message>
    <message>
        <source>Ink or toner low</source>
        <translation>Pouca tinta ou toner</translation>
    </message>
    <message>
        <source>Waste toner almost full</source>
        <translation>Recipiente de resíduos quase cheio</translation>
    </message>
    <message>
        <source>Waste toner full</source>
        <translation>Recipiente de resíduos cheio</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Sem papel</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papel atolado</translation>
    </message>
    <message>
        <source>Paper low</source>
        <translation>Pouco papel</translation>
    </message>
    <message>
        <source>Paper needed</source>
        <translation>Papel necessário</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>Pausando</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Off-line</translation>
    </message>
    <message>
        <source>Drum worn out</source>
        <translation>Cilindro gasto</translation>
    </message>
    <message>
        <source>Drum almost worn out</source>
        <translation>Cilindro quase gasto</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requer atenção</translation>
    </message>
    <message>
        <source>Output tray almost full</source>
        <translation>Bandeja de saída quase cheia</translation>
    </message>
    <message>
        <source>Output tray full</source>
        <translation>Bandeja de saída cheia</translation>
    </message>
    <message>
        <source>Output tray missing</source>
        <translation>Bandeja de saída ausente</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation>Desligada</translation>
    </message>
    <message>
        <source>Printer memory full</source>
        <translation>Memória da impressora cheia</translation>
    </message>
    <message>
        <source>Partly stopped</source>
        <translation>Parcialmente parada</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Parando</translation>
    </message>
    <message>
        <source>Not responding</source>
        <translation>Não responde</translation>
    </message>
    <message>
        <source>Out of toner</source>
        <translation>Sem toner</translation>
    </message>
    <message>
        <source>Toner low</source>
        <translation>Pouco toner</translation>
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
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executivo</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloide</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Carta dupla</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Meia carta</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Cartão-postal (Japão)</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Cartão-postal duplo (Japão)</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Envelope Monarch</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>Envelope %1</translation>
    </message>
    <message>
        <source>Envelope #%1</source>
        <translation>Envelope nº %1</translation>
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
        <translation>Cassete</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Cassete %1</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bandeja %1</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentação manual</translation>
    </message>
    <message>
        <source>Multi-purpose tray</source>
        <translation>Bandeja multiuso</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Alimentador de envelopes</translation>
    </message>
    <message>
        <source>Manual envelope feed</source>
        <translation>Alimentação manual de envelopes</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Bandeja de alta capacidade</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bandeja superior</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bandeja do meio</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bandeja inferior</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bandeja esquerda</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bandeja direita</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bandeja lateral</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bandeja traseira</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bandeja central</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bandeja de fotos</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bandeja de discos</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Bandeja de cartões-postais</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>Rolo de papel</translation>
    </message>
    <message>
        <source>Alternate paper roll</source>
        <translation>Rolo de papel alternativo</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolo %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Papel comum</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papel timbrado</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Papel pré-impresso</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Papel perfurado</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Papel reciclado</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Papel apergaminhado</translation>
    </message>
    <message>
        <source>Heavyweight</source>
        <translation>Papel grosso</translation>
    </message>
    <message>
        <source>Lightweight</source>
        <translation>Papel fino</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Papel revestido</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papel para jato de tinta</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papel de qualidade</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Papel colorido</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Papel de algodão</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>Cartolina</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparência</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Envelope</translation>
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
        <translation>Papel fotográfico brilhante</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papel fotográfico de alto brilho</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papel fotográfico semibrilhante</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papel fotográfico acetinado</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papel fotográfico fosco</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Papel contínuo</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Papel com abas</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Upper output tray</source>
        <translation>Bandeja de saída superior</translation>
    </message>
    <message>
        <source>Middle output tray</source>
        <translation>Bandeja de saída do meio</translation>
    </message>
    <message>
        <source>Lower output tray</source>
        <translation>Bandeja de saída inferior</translation>
    </message>
    <message>
        <source>Left output tray</source>
        <translation>Bandeja de saída esquerda</translation>
    </message>
    <message>
        <source>Right output tray</source>
        <translation>Bandeja de saída direita</translation>
    </message>
    <message>
        <source>Center output tray</source>
        <translation>Bandeja de saída central</translation>
    </message>
    <message>
        <source>Side output tray</source>
        <translation>Bandeja de saída lateral</translation>
    </message>
    <message>
        <source>Rear output tray</source>
        <translation>Bandeja de saída traseira</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Face impressa para cima</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Face impressa para baixo</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Empilhador %1</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Empilhador</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Caixa de correio %1</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>Minha caixa de correio</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colorido</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>Black only, no grays</source>
        <translation>Somente preto, sem cinzas</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Rascunho</translation>
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
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grampear</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Dois grampos</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Três grampos</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Costura na borda</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Costura a cavalo</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livreto</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perfurar</translation>
    </message>
    <message>
        <source>Punch two holes</source>
        <translation>Dois furos</translation>
    </message>
    <message>
        <source>Punch three holes</source>
        <translation>Três furos</translation>
    </message>
    <message>
        <source>Punch four holes</source>
        <translation>Quatro furos</translation>
    </message>
    <message>
        <source>Punch many holes</source>
        <translation>Vários furos</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Encadernar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Aparar</translation>
    </message>
    <message>
        <source>Add a cover</source>
        <translation>Adicionar uma capa</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Deslocar os trabalhos</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminar</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Dobrar</translation>
    </message>
    <message>
        <source>Fold in half</source>
        <translation>Dobrar ao meio</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Dobra de carta</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Dobra em Z</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Meia dobra em Z</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Dobra sanfonada</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Dobra em janela</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Dobra dupla em janela</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Dobra paralela</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>superior esquerdo</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>inferior esquerdo</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>superior direito</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>inferior direito</translation>
    </message>
    <message>
        <source>left</source>
        <translation>à esquerda</translation>
    </message>
    <message>
        <source>top</source>
        <translation>em cima</translation>
    </message>
    <message>
        <source>right</source>
        <translation>à direita</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>embaixo</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, sem margens</translation>
    </message>
</context>
<context>
    <name>kesto::CoverControl</name>
    <message>
        <source>Cover sheet before</source>
        <translation>Folha de rosto antes</translation>
    </message>
    <message>
        <source>Cover sheet after</source>
        <translation>Folha de rosto depois</translation>
    </message>
</context>
<context>
    <name>kesto::CredentialsDialog</name>
    <message>
        <source>Password required</source>
        <translation>Senha necessária</translation>
    </message>
    <message>
        <source>The printer %1 asks for your password.</source>
        <translation>A impressora %1 pede sua senha.</translation>
    </message>
    <message>
        <source>The print server %1 asks for your password.</source>
        <translation>O servidor de impressão %1 pede sua senha.</translation>
    </message>
    <message>
        <source>Wrong user name or password. Try again.</source>
        <translation>Nome de usuário ou senha incorretos. Tente novamente.</translation>
    </message>
    <message>
        <source>Domain:</source>
        <translation>Domínio:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>Enviando o trabalho</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>kesto::Document</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Não foi possível ler %1: %2</translation>
    </message>
    <message>
        <source>%1 is a folder. Choose a file.</source>
        <translation>%1 é uma pasta. Escolha um arquivo.</translation>
    </message>
    <message>
        <source>%1 is larger than %2, the most that can be printed.</source>
        <translation>%1 é maior que %2, o máximo que pode ser impresso.</translation>
    </message>
    <message>
        <source>%1 cannot be copied for printing: %2</source>
        <translation>Não foi possível copiar %1 para impressão: %2</translation>
    </message>
    <message>
        <source>%1 is empty. There is nothing to print.</source>
        <translation>%1 está vazio. Não há nada para imprimir.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>O documento</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e mais %n</numerusform>
            <numerusform>%1 e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::DocumentExaminer</name>
    <message>
        <source>The document has no pages. There is nothing to print.</source>
        <translation>O documento não tem páginas. Não há nada para imprimir.</translation>
    </message>
    <message>
        <source>No preview is available. Install cups to see one.</source>
        <translation>Nenhuma visualização disponível. Instale o cups para vê-la.</translation>
    </message>
    <message>
        <source>No preview is available because converting the document takes too long.</source>
        <translation>Nenhuma visualização disponível porque a conversão do documento demora demais.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Nenhuma visualização disponível para este tipo de documento.</translation>
    </message>
    <message>
        <source>The document is protected by a password. Enter the password to print it.</source>
        <translation>O documento está protegido por senha. Digite a senha para imprimi-lo.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be shown. The printer may not be able to print it.</source>
        <translation>O documento está danificado e não pode ser mostrado. Talvez a impressora não consiga imprimi-lo.</translation>
    </message>
    <message>
        <source>The document is damaged. Some of it may be missing.</source>
        <translation>O documento está danificado. Uma parte dele pode estar faltando.</translation>
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
        <translation>Escolher…</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Escolher um documento</translation>
    </message>
</context>
<context>
    <name>kesto::DocumentUnlocking</name>
    <message>
        <source>The document cannot be opened. Install qpdf to open it.</source>
        <translation>Não foi possível abrir o documento. Instale o qpdf para abri-lo.</translation>
    </message>
    <message>
        <source>Opening the document takes too long.</source>
        <translation>A abertura do documento demora demais.</translation>
    </message>
    <message>
        <source>There is not enough space for a copy of the document.</source>
        <translation>Não há espaço suficiente para uma cópia do documento.</translation>
    </message>
    <message>
        <source>The document is damaged and cannot be opened.</source>
        <translation>O documento está danificado e não pode ser aberto.</translation>
    </message>
    <message>
        <source>Wrong password. You can try once more.</source>
        <translation>Senha incorreta. Você pode tentar mais uma vez.</translation>
    </message>
    <message numerus="yes">
        <source>Wrong password. You can try %n more times.</source>
        <translation>
            <numerusform>Senha incorreta. Você pode tentar mais %n vez.</numerusform>
            <numerusform>Senha incorreta. Você pode tentar mais %n vezes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::Faults</name>
    <message>
        <source>looking up the print server %1 took too long</source>
        <translation>a procura do servidor de impressão %1 demorou demais</translation>
    </message>
    <message>
        <source>there is no print server named %1</source>
        <translation>não há servidor de impressão chamado %1</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1 with encryption</source>
        <translation>não foi possível conectar ao servidor de impressão %1 com criptografia</translation>
    </message>
    <message>
        <source>cannot connect to the print server %1. Is it running?</source>
        <translation>não foi possível conectar ao servidor de impressão %1. Ele está em execução?</translation>
    </message>
    <message>
        <source>the print server %1 stopped reading the document</source>
        <translation>o servidor de impressão %1 parou de ler o documento</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is incomplete</source>
        <translation>a resposta do servidor de impressão está incompleta</translation>
    </message>
    <message>
        <source>the print server&apos;s answer is too large</source>
        <translation>a resposta do servidor de impressão é grande demais</translation>
    </message>
    <message>
        <source>the print server %1 did not answer within %2 s</source>
        <translation>o servidor de impressão %1 não respondeu em %2 s</translation>
    </message>
    <message>
        <source>the print server %1 closed the connection</source>
        <translation>o servidor de impressão %1 fechou a conexão</translation>
    </message>
    <message>
        <source>the print server %1 redirected to another address (HTTP status %2); redirects are not followed</source>
        <translation>o servidor de impressão %1 redirecionou para outro endereço (status HTTP %2); redirecionamentos não são seguidos</translation>
    </message>
    <message>
        <source>the print server %1 asks for a password</source>
        <translation>o servidor de impressão %1 pede uma senha</translation>
    </message>
    <message>
        <source>the print server %1 answered: %2 (HTTP status %3)</source>
        <translation>o servidor de impressão %1 respondeu: %2 (status HTTP %3)</translation>
    </message>
    <message>
        <source>cannot read the print server&apos;s answer</source>
        <translation>não foi possível ler a resposta do servidor de impressão</translation>
    </message>
    <message>
        <source>the job&apos;s options</source>
        <translation>as opções do trabalho</translation>
    </message>
    <message>
        <source>the user name</source>
        <translation>o nome de usuário</translation>
    </message>
    <message>
        <source>the job&apos;s name</source>
        <translation>o nome do trabalho</translation>
    </message>
    <message>
        <source>the digest of the pass code</source>
        <translation>o resumo do código de acesso</translation>
    </message>
    <message>
        <source>the pass code</source>
        <translation>o código de acesso</translation>
    </message>
    <message>
        <source>the spool time</source>
        <translation>o horário do trabalho</translation>
    </message>
    <message>
        <source>the folder&apos;s pass code</source>
        <translation>o código de acesso da pasta</translation>
    </message>
    <message>
        <source>the folder</source>
        <translation>a pasta</translation>
    </message>
    <message>
        <source>the user number</source>
        <translation>o número de usuário</translation>
    </message>
    <message>
        <source>the account number</source>
        <translation>o número da conta</translation>
    </message>
    <message>
        <source>the print server did not give the job a number</source>
        <translation>o servidor de impressão não deu um número ao trabalho</translation>
    </message>
    <message>
        <source>cannot create a job on &quot;%1&quot;: %2</source>
        <translation>não foi possível criar um trabalho em “%1”: %2</translation>
    </message>
    <message>
        <source>cannot cancel job %1-%2: %3</source>
        <translation>não foi possível cancelar o trabalho %1-%2: %3</translation>
    </message>
    <message>
        <source>the print server&apos;s answer does not contain the job</source>
        <translation>a resposta do servidor de impressão não contém o trabalho</translation>
    </message>
    <message>
        <source>cannot find out what other users see: %1</source>
        <translation>não foi possível descobrir o que os outros usuários veem: %1</translation>
    </message>
    <message>
        <source>%1: line %2: %3</source>
        <translation>%1: linha %2: %3</translation>
    </message>
    <message>
        <source>cannot get the PPD of %1: %2</source>
        <translation>não foi possível obter o PPD de %1: %2</translation>
    </message>
    <message>
        <source>cannot store the PPD: %1</source>
        <translation>não foi possível salvar o PPD: %1</translation>
    </message>
    <message>
        <source>the PPD of %1 is too large</source>
        <translation>o PPD de %1 é grande demais</translation>
    </message>
    <message>
        <source>cannot read standard input</source>
        <translation>não foi possível ler a entrada padrão</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: é uma pasta</translation>
    </message>
    <message>
        <source>the job was stopped</source>
        <translation>o trabalho foi interrompido</translation>
    </message>
    <message>
        <source>the print server stopped the job: %1</source>
        <translation>o servidor de impressão interrompeu o trabalho: %1</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file</source>
        <translation>esta impressora não aceita este tipo de arquivo</translation>
    </message>
    <message>
        <source>this printer does not accept this type of file (%1)</source>
        <translation>esta impressora não aceita este tipo de arquivo (%1)</translation>
    </message>
    <message>
        <source>could not print %1: %2</source>
        <translation>não foi possível imprimir %1: %2</translation>
    </message>
    <message>
        <source>the print server refused the job: %1</source>
        <translation>o servidor de impressão recusou o trabalho: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs</source>
        <translation>“%1” não está aceitando trabalhos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not accepting jobs: %2</source>
        <translation>“%1” não está aceitando trabalhos: %2</translation>
    </message>
    <message>
        <source>there is no printer named &quot;%1&quot;</source>
        <translation>não há impressora chamada “%1”</translation>
    </message>
    <message>
        <source>cannot open the printer &quot;%1&quot;: %2</source>
        <translation>não foi possível abrir a impressora “%1”: %2</translation>
    </message>
    <message>
        <source>the Job Handling extension has no panel for the print dialog</source>
        <translation>a extensão “Gerenciamento de trabalhos” não tem painel para o diálogo de impressão</translation>
    </message>
    <message>
        <source>the panel has no layout</source>
        <translation>o painel não tem layout</translation>
    </message>
    <message>
        <source>cannot write the printer&apos;s answer to the temporary folder. Is the disk full?</source>
        <translation>não foi possível gravar a resposta da impressora na pasta temporária. O disco está cheio?</translation>
    </message>
    <message>
        <source>the printer&apos;s answer is not a list of folders</source>
        <translation>a resposta da impressora não é uma lista de pastas</translation>
    </message>
    <message>
        <source>cannot find JobHandling.pde beside the program or in the library folder</source>
        <translation>não foi possível encontrar JobHandling.pde ao lado do programa nem na pasta de bibliotecas</translation>
    </message>
    <message>
        <source>cannot remember the folders: %1</source>
        <translation>não foi possível memorizar as pastas: %1</translation>
    </message>
    <message>
        <source>Job Handling for the model %1</source>
        <translation>Gerenciamento de trabalhos do modelo %1</translation>
    </message>
    <message>
        <source>nothing was printed before</source>
        <translation>nada foi impresso antes</translation>
    </message>
    <message>
        <source>a preset cannot store this folder&apos;s name</source>
        <translation>uma predefinição não pode guardar o nome desta pasta</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has no presets</source>
        <translation>não há predefinição “%1”; esta impressora não tem predefinições</translation>
    </message>
    <message>
        <source>there is no preset &quot;%1&quot;; this printer has: %2</source>
        <translation>não há predefinição “%1”; esta impressora tem: %2</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is damaged and was left unchanged</source>
        <translation>a predefinição “%1” está danificada e não foi alterada</translation>
    </message>
    <message>
        <source>this printer&apos;s presets are damaged and were left unchanged</source>
        <translation>as predefinições desta impressora estão danificadas e não foram alteradas</translation>
    </message>
    <message>
        <source>a preset&apos;s name must have at most %1 characters; choose a shorter one</source>
        <translation>o nome de uma predefinição deve ter no máximo %1 caracteres; escolha um mais curto</translation>
    </message>
    <message>
        <source>cannot read this printer&apos;s presets: %1</source>
        <translation>não foi possível ler as predefinições desta impressora: %1</translation>
    </message>
    <message>
        <source>the preset &quot;%1&quot; is for another printer model, %2</source>
        <translation>a predefinição “%1” é de outro modelo de impressora, %2</translation>
    </message>
    <message>
        <source>the print server no longer knows the job</source>
        <translation>o servidor de impressão não conhece mais o trabalho</translation>
    </message>
    <message>
        <source>cannot cancel job %1: %2</source>
        <translation>não foi possível cancelar o trabalho %1: %2</translation>
    </message>
    <message>
        <source>wrong user name or password for the printer &quot;%1&quot;</source>
        <translation>nome de usuário ou senha incorretos para a impressora “%1”</translation>
    </message>
    <message>
        <source>wrong user name or password for the print server %1</source>
        <translation>nome de usuário ou senha incorretos para o servidor de impressão %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; asks for a password</source>
        <translation>a impressora “%1” pede uma senha</translation>
    </message>
    <message>
        <source>cannot set up the printer &quot;%1&quot;: %2</source>
        <translation>não é possível configurar a impressora “%1”: %2</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>a impressora não responde</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>o endereço é desconhecido</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>conexão recusada</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>a conexão foi encerrada</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>nenhuma resposta a tempo</translation>
    </message>
    <message>
        <source>the answer cannot be read</source>
        <translation>a resposta não pode ser lida</translation>
    </message>
    <message>
        <source>the printer cannot be reached</source>
        <translation>a impressora não pode ser acessada</translation>
    </message>
    <message>
        <source>no folder list from %1: %2</source>
        <translation>nenhuma lista de pastas de %1: %2</translation>
    </message>
    <message>
        <source>%1: a folder, not a PPD file</source>
        <translation>%1: uma pasta, não um arquivo PPD</translation>
    </message>
    <message>
        <source>no default printer is set; choose one with -d</source>
        <translation>nenhuma impressora padrão está definida; escolha uma com -d</translation>
    </message>
    <message>
        <source>it belongs to another printer</source>
        <translation>ele pertence a outra impressora</translation>
    </message>
    <message>
        <source>cannot restart job %1: %2</source>
        <translation>não foi possível reiniciar o trabalho %1: %2</translation>
    </message>
    <message>
        <source>cannot change job %1: %2</source>
        <translation>não foi possível alterar o trabalho %1: %2</translation>
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
        <translation>Às</translation>
    </message>
    <message>
        <source>Enter a time of day, for example 14:30.</source>
        <translation>Digite um horário, por exemplo 14:30.</translation>
    </message>
</context>
<context>
    <name>kesto::JobWatch</name>
    <message>
        <source>Waiting for the printer</source>
        <translation>Aguardando a impressora</translation>
    </message>
    <message>
        <source>Waiting for 1 other job</source>
        <translation>Aguardando 1 outro trabalho</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %n other jobs</source>
        <translation>
            <numerusform>Aguardando %n outro trabalho</numerusform>
            <numerusform>Aguardando %n outros trabalhos</numerusform>
        </translation>
    </message>
    <message>
        <source>Held: the printer asks for a password</source>
        <translation>Retido: a impressora pede uma senha</translation>
    </message>
    <message>
        <source>Held until its time to print</source>
        <translation>Retido até o horário de impressão</translation>
    </message>
    <message>
        <source>Held until it is released</source>
        <translation>Retido até ser liberado</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source>Printing page %1</source>
        <translation>Imprimindo a página %1</translation>
    </message>
    <message>
        <source>Printing page %1 of %2</source>
        <translation>Imprimindo a página %1 de %2</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Interrompido: %1</translation>
    </message>
    <message>
        <source>Stopped: the printer is paused</source>
        <translation>Interrompido: a impressora está em pausa</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrompido</translation>
    </message>
    <message>
        <source>Waits at %1 until you enter your pass code there</source>
        <translation>Aguarda em %1 até você digitar ali seu código de acesso</translation>
    </message>
    <message>
        <source>Waits at %1 until you release it there</source>
        <translation>Aguarda em %1 até você liberá-lo ali</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Impresso</translation>
    </message>
    <message>
        <source>Printed, and kept at %1 for printing again</source>
        <translation>Impresso e mantido em %1 para nova impressão</translation>
    </message>
    <message>
        <source>One copy is printed, the others wait at %1</source>
        <translation>Uma cópia foi impressa, as outras aguardam em %1</translation>
    </message>
    <message>
        <source>Canceled by %1</source>
        <translation>Cancelado por %1</translation>
    </message>
    <message>
        <source>Canceled at the printer</source>
        <translation>Cancelado na impressora</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Stopped by the print server</source>
        <translation>Interrompido pelo servidor de impressão</translation>
    </message>
    <message>
        <source>Not printed</source>
        <translation>Não impresso</translation>
    </message>
    <message>
        <source>It is not known whether the job is printed</source>
        <translation>Não se sabe se o trabalho foi impresso</translation>
    </message>
    <message>
        <source>Connecting to the printer</source>
        <translation>Conectando à impressora</translation>
    </message>
</context>
<context>
    <name>kesto::OptionPane</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>More options</source>
        <translation>Mais opções</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>A PDF file keeps its pages as they are. Only pages and their order can be chosen.</source>
        <translation>Um arquivo PDF mantém as páginas como são. Só é possível escolher as páginas e a ordem delas.</translation>
    </message>
</context>
<context>
    <name>kesto::PageImages</name>
    <message>
        <source>No preview is available because drawing the page takes too long.</source>
        <translation>Nenhuma visualização disponível porque o desenho da página demora demais.</translation>
    </message>
    <message>
        <source>No preview is available for this type of document.</source>
        <translation>Nenhuma visualização disponível para este tipo de documento.</translation>
    </message>
    <message>
        <source>No preview is available. Install poppler-utils to see one.</source>
        <translation>Nenhuma visualização disponível. Instale o poppler-utils para vê-la.</translation>
    </message>
    <message>
        <source>No preview is available because this PDF document cannot be read.</source>
        <translation>Nenhuma visualização disponível porque este documento PDF não pode ser lido.</translation>
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
        <translation>Próxima página</translation>
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
        <translation>Todas as páginas</translation>
    </message>
    <message>
        <source>Selected pages</source>
        <translation>Páginas selecionadas</translation>
    </message>
    <message>
        <source>1-3, 5</source>
        <translation>1-3, 5</translation>
    </message>
    <message>
        <source>The document ends at page %1. Pages that will be printed: %2.</source>
        <translation>O documento termina na página %1. Páginas que serão impressas: %2.</translation>
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
        <translation>Digite o endereço da impressora para obter os nomes das pastas dela.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address. Enter the printer&apos;s name or IP address.</source>
        <translation>“%1” não é um endereço. Digite o nome ou o endereço IP da impressora.</translation>
    </message>
    <message>
        <source>This printer does not file documents, so the choice of a folder has no effect.</source>
        <translation>Esta impressora não arquiva documentos, portanto a escolha de uma pasta não tem efeito.</translation>
    </message>
    <message>
        <source>Locked: this entry is remembered for this printer.</source>
        <translation>Bloqueado: este dado fica memorizado para esta impressora.</translation>
    </message>
    <message>
        <source>Unlocked: this entry is for this job only.</source>
        <translation>Desbloqueado: este dado vale somente para este trabalho.</translation>
    </message>
</context>
<context>
    <name>kesto::PaperControl</name>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>pol.</translation>
    </message>
    <message>
        <source>Custom size</source>
        <translation>Tamanho personalizado</translation>
    </message>
    <message>
        <source>Enter a width between %1 and %2 %3.</source>
        <translation>Digite uma largura entre %1 e %2 %3.</translation>
    </message>
    <message>
        <source>Enter a height between %1 and %2 %3.</source>
        <translation>Digite uma altura entre %1 e %2 %3.</translation>
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
        <translation>%1 está protegido por senha. Digite a senha para imprimir o documento.</translation>
    </message>
    <message>
        <source>The document</source>
        <translation>O documento</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
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
        <source>No pages are selected.</source>
        <translation>Nenhuma página selecionada.</translation>
    </message>
    <message>
        <source>Install qpdf to save PDF files.</source>
        <translation>Instale o qpdf para salvar arquivos PDF.</translation>
    </message>
    <message>
        <source>Saving takes too long.</source>
        <translation>O salvamento demora demais.</translation>
    </message>
    <message>
        <source>There is not enough space.</source>
        <translation>Não há espaço suficiente.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrompido.</translation>
    </message>
    <message>
        <source>%1 cannot be saved. %2</source>
        <translation>Não foi possível salvar %1. %2</translation>
    </message>
</context>
<context>
    <name>kesto::PercentControl</name>
    <message>
        <source>Percent</source>
        <translation>Porcentagem</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizada</translation>
    </message>
    <message>
        <source>Enter a percentage between %1 and %2.</source>
        <translation>Digite uma porcentagem entre %1 e %2.</translation>
    </message>
</context>
<context>
    <name>kesto::PresetMenu</name>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Última usada</translation>
    </message>
    <message>
        <source>No presets</source>
        <translation>Nenhuma predefinição</translation>
    </message>
    <message>
        <source>Save as preset…</source>
        <translation>Salvar como predefinição…</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Excluir predefinição</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (alterada)</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Predefinições: %1</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>Salvar como predefinição</translation>
    </message>
    <message>
        <source>Include the pass codes</source>
        <translation>Incluir os códigos de acesso</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Replace the preset &quot;%1&quot;?</source>
        <translation>Substituir a predefinição “%1”?</translation>
    </message>
</context>
<context>
    <name>kesto::Preview</name>
    <message>
        <source>Only PDF documents can be saved as PDF.</source>
        <translation>Somente documentos PDF podem ser salvos como PDF.</translation>
    </message>
    <message>
        <source>No pages are selected.</source>
        <translation>Nenhuma página selecionada.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Folha %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Folha %1 de %2, frente</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Folha %1 de %2, verso</translation>
    </message>
    <message>
        <source>%1, 1 page</source>
        <translation>%1, 1 página</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n pages</source>
        <translation>
            <numerusform>%1, %n página</numerusform>
            <numerusform>%1, %n páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Total: 1 sheet of paper</source>
        <translation>Total: 1 folha de papel</translation>
    </message>
    <message numerus="yes">
        <source>Total: %n sheets of paper</source>
        <translation>
            <numerusform>Total: %n folha de papel</numerusform>
            <numerusform>Total: %n folhas de papel</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kesto::PrintDialog</name>
    <message>
        <source>Connecting to the printer…</source>
        <translation>Conectando à impressora…</translation>
    </message>
    <message>
        <source>Saves the selected pages in a file.</source>
        <translation>Salva as páginas selecionadas em um arquivo.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>This printer does not support %1. The job will be printed without it.</source>
        <translation>Esta impressora não oferece suporte a %1. O trabalho será impresso sem isso.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Salvar como PDF</translation>
    </message>
    <message>
        <source>Print on %1</source>
        <translation>Imprimir em %1</translation>
    </message>
    <message>
        <source>No document selected</source>
        <translation>Nenhum documento selecionado</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lendo o documento…</translation>
    </message>
    <message>
        <source>The document is long. The rest of it is read when you print.</source>
        <translation>O documento é longo. O restante é lido na hora da impressão.</translation>
    </message>
    <message>
        <source>No preview is available. The application prepares the pages after you press Print.</source>
        <translation>Nenhuma visualização disponível. O aplicativo prepara as páginas depois que você pressiona “Imprimir”.</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Nenhum documento</translation>
    </message>
    <message>
        <source>Choose a document</source>
        <translation>Escolher um documento</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Job %1 was sent to %2.</source>
        <translation>O trabalho %1 foi enviado para %2.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Salvo como %1.</translation>
    </message>
    <message>
        <source>The job was not printed. %1</source>
        <translation>O trabalho não foi impresso. %1</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Salvar…</translation>
    </message>
    <message>
        <source>Choose a document to print.</source>
        <translation>Escolha um documento para imprimir.</translation>
    </message>
    <message>
        <source>Canceling the job…</source>
        <translation>Cancelando o trabalho…</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impressora:</translation>
    </message>
    <message>
        <source>Document:</source>
        <translation>Documento:</translation>
    </message>
    <message>
        <source>This printer does not support %1 of the preset. The rest is set.</source>
        <translation>Esta impressora não oferece suporte a %1 da predefinição. O restante foi definido.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Not held</source>
        <translation>Não retido</translation>
    </message>
    <message>
        <source>Job %1: %2.</source>
        <translation>Trabalho %1: %2.</translation>
    </message>
    <message>
        <source>Its entries could not be remembered.</source>
        <translation>Não foi possível memorizar os dados dele.</translation>
    </message>
    <message>
        <source>Print again</source>
        <translation>Imprimir novamente</translation>
    </message>
    <message>
        <source>Cancel job</source>
        <translation>Cancelar trabalho</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>1 folder from %1</source>
        <translation>1 pasta de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders from %1</source>
        <translation>
            <numerusform>%n pasta de %1</numerusform>
            <numerusform>%n pastas de %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The print server no longer has this printer. It may have been removed.</source>
        <translation>O servidor de impressão não tem mais esta impressora. Ela pode ter sido removida.</translation>
    </message>
</context>
<context>
    <name>kesto::PrinterDetails</name>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrição:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modelo:</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Local:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Mensagem:</translation>
    </message>
    <message>
        <source>Level unknown</source>
        <translation>Nível desconhecido</translation>
    </message>
</context>
<context>
    <name>kesto::QueueChooser</name>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Nenhuma impressora</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Procurando impressoras…</translation>
    </message>
    <message>
        <source>Enter the name of a printer.</source>
        <translation>Digite o nome de uma impressora.</translation>
    </message>
    <message>
        <source>Press Enter to choose %1.</source>
        <translation>Pressione Enter para escolher %1.</translation>
    </message>
    <message>
        <source>Several printers match. Choose one of them.</source>
        <translation>Várias impressoras correspondem. Escolha uma delas.</translation>
    </message>
    <message>
        <source>There is no printer named &quot;%1&quot;.</source>
        <translation>Não há impressora chamada “%1”.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Printer details</source>
        <translation>Detalhes da impressora</translation>
    </message>
</context>
<context>
    <name>kesto::QueueListModel</name>
    <message>
        <source>Save as PDF</source>
        <translation>Salvar como PDF</translation>
    </message>
    <message>
        <source>Not accepting jobs: %1</source>
        <translation>Não aceita trabalhos: %1</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Não aceita trabalhos</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Em pausa: %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>1 job waiting</source>
        <translation>1 trabalho aguardando</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs waiting</source>
        <translation>
            <numerusform>%n trabalho aguardando</numerusform>
            <numerusform>%n trabalhos aguardando</numerusform>
        </translation>
    </message>
    <message>
        <source>On the network</source>
        <translation>Na rede</translation>
    </message>
</context>
<context>
    <name>kesto::QueueOpening</name>
    <message>
        <source>No printer is accepting jobs. Check the printers in the system settings, then try again.</source>
        <translation>Nenhuma impressora está aceitando trabalhos. Verifique as impressoras nas configurações do sistema e tente novamente.</translation>
    </message>
</context>
<context>
    <name>kesto::SheetView</name>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
</context>
<context>
    <name>kesto::SummaryPane</name>
    <message>
        <source>Who can see this job?</source>
        <translation>Quem pode ver este trabalho?</translation>
    </message>
    <message>
        <source>Other users can see that this job exists, but none of its details.</source>
        <translation>Outros usuários podem ver que este trabalho existe, mas nenhum detalhe dele.</translation>
    </message>
    <message>
        <source>Other users can see %1. To hide it, add these lines to the print server&apos;s policy &quot;%2&quot;:</source>
        <translation>Outros usuários podem ver: %1. Para ocultar isso, adicione estas linhas à política “%2” do servidor de impressão:</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (alterada)</translation>
    </message>
</context>
</TS>
