<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opzione sconosciuta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opzioni sconosciute: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Manca un valore dopo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valore inatteso dopo &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>%1 (see %2 --help)</source>
        <translation>%1 (vedere %2 --help)</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>impossibile scrivere sullo standard output: %1</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</source>
        <translation>Codice di uscita: 0 riuscito, 1 errore, 2 uso errato. Non riuscire a scrivere l’output è un errore, a meno che il lettore abbia chiuso la pipe.</translation>
    </message>
    <message>
        <source>the character U+%1 is invisible; remove it</source>
        <translation>il carattere U+%1 è invisibile; rimuoverlo</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuoto</translation>
    </message>
    <message>
        <source>longer than %1 characters</source>
        <translation>più lungo di %1 caratteri</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number between %2 and %3</source>
        <translation>&quot;%1&quot; non è un numero intero tra %2 e %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</source>
        <translation>&quot;%1&quot; non è uno SKU: al massimo %2 lettere dalla A alla Z, cifre, punti, trattini bassi e trattini, con una lettera o una cifra all’inizio</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour of the form #RRGGBB</source>
        <translation>&quot;%1&quot; non è un colore nella forma #RRGGBB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>&quot;%1&quot; non è né yes né no</translation>
    </message>
    <message>
        <source>%1: no such file, or it cannot be read</source>
        <translation>%1: il file non esiste o non è leggibile</translation>
    </message>
    <message>
        <source>the column %1 is missing</source>
        <translation>manca la colonna %1</translation>
    </message>
    <message>
        <source>the column en is missing</source>
        <translation>manca la colonna en</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language</source>
        <translation>né una colonna di questa tabella né una lingua nota</translation>
    </message>
    <message>
        <source>not a column of this table</source>
        <translation>non è una colonna di questa tabella</translation>
    </message>
    <message>
        <source>the same language as the column %1</source>
        <translation>la stessa lingua della colonna %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number between %2 and %3</source>
        <translation>&quot;%1&quot; non è un numero tra %2 e %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not greater than 0</source>
        <translation>&quot;%1&quot; non è maggiore di 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in colours.csv</source>
        <translation>&quot;%1&quot; non è in colours.csv</translation>
    </message>
    <message>
        <source>a space in a colour&apos;s key</source>
        <translation>uno spazio nella chiave di un colore</translation>
    </message>
    <message>
        <source>duplicate colour &quot;%1&quot;</source>
        <translation>colore &quot;%1&quot; duplicato</translation>
    </message>
    <message>
        <source>duplicate material %1</source>
        <translation>materiale %1 duplicato</translation>
    </message>
    <message>
        <source>duplicate format %1</source>
        <translation>formato %1 duplicato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>&quot;%1&quot; non è uno dei valori %2</translation>
    </message>
    <message>
        <source>format %1 is not in formats.csv</source>
        <translation>il formato %1 non è in formats.csv</translation>
    </message>
    <message>
        <source>duplicate number %1</source>
        <translation>numero %1 duplicato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a plain file name</source>
        <translation>&quot;%1&quot; non è un semplice nome di file</translation>
    </message>
    <message>
        <source>%1%2 cannot be read</source>
        <translation>impossibile leggere %1%2</translation>
    </message>
    <message>
        <source>%1%2 is larger than %3 KiB</source>
        <translation>%1%2 supera %3 KiB</translation>
    </message>
    <message>
        <source>%1%2 is not a readable image</source>
        <translation>%1%2 non è un’immagine leggibile</translation>
    </message>
    <message>
        <source>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</source>
        <translation>%1%2 ha %3 per %4 pixel; il massimo è %5 per %5</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>più di %1 righe</translation>
    </message>
    <message>
        <source>duplicate SKU %1</source>
        <translation>SKU %1 duplicato</translation>
    </message>
    <message>
        <source>material %1 is not in materials.csv</source>
        <translation>il materiale %1 non è in materials.csv</translation>
    </message>
    <message>
        <source>a second colour and its width must be given together or not at all</source>
        <translation>un secondo colore e la sua larghezza vanno indicati insieme o per nulla</translation>
    </message>
    <message>
        <source>a label length is given, but the format is continuous</source>
        <translation>è indicata una lunghezza di etichetta, ma il formato è continuo</translation>
    </message>
    <message>
        <source>empty, but the format is not continuous</source>
        <translation>vuoto, ma il formato non è continuo</translation>
    </message>
    <message>
        <source>a gap is given, but there is only one label across</source>
        <translation>è indicato uno spazio, ma c’è una sola etichetta in larghezza</translation>
    </message>
    <message>
        <source>empty, but there are several labels across</source>
        <translation>vuoto, ma ci sono più etichette in larghezza</translation>
    </message>
    <message>
        <source>%1 is a supply&apos;s SKU</source>
        <translation>%1 è lo SKU di un materiale</translation>
    </message>
    <message>
        <source>%1 panels; a ribbon has 1 to %2</source>
        <translation>%1 pannelli; un nastro ne ha da 1 a %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in ribbons.csv</source>
        <translation>&quot;%1&quot; non è in ribbons.csv</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in supplies.csv</source>
        <translation>&quot;%1&quot; non è in supplies.csv</translation>
    </message>
    <message>
        <source>duplicate print setting for panel %1 of %2 with %3</source>
        <translation>impostazione di stampa duplicata per il pannello %1 di %2 con %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same model as &quot;%2&quot;</source>
        <translation>&quot;%1&quot; è lo stesso modello di &quot;%2&quot;</translation>
    </message>
    <message>
        <source>duplicate format %1 for %2</source>
        <translation>formato %1 duplicato per %2</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1: la directory non esiste</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 non è un file</translation>
    </message>
    <message>
        <source>%1: cannot be created in %2: %3</source>
        <translation>%1: impossibile crearlo in %2: %3</translation>
    </message>
    <message>
        <source>%1: larger than 16 MiB</source>
        <translation>%1: supera 16 MiB</translation>
    </message>
    <message>
        <source>not UTF-8 text</source>
        <translation>non è testo UTF-8</translation>
    </message>
    <message>
        <source>%1:%2, column %3 (%4)</source>
        <translation>%1:%2, colonna %3 (%4)</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>più di %1 colonne</translation>
    </message>
    <message>
        <source>a carriage return without a line feed</source>
        <translation>un ritorno a capo senza avanzamento riga</translation>
    </message>
    <message>
        <source>text after a closing quotation mark</source>
        <translation>testo dopo una virgoletta di chiusura</translation>
    </message>
    <message>
        <source>a field of more than %1 characters</source>
        <translation>un campo di più di %1 caratteri</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>un carattere NUL</translation>
    </message>
    <message>
        <source>a quotation mark inside a field that is not quoted</source>
        <translation>una virgoletta in un campo senza virgolette</translation>
    </message>
    <message>
        <source>an unclosed quotation mark</source>
        <translation>una virgoletta non chiusa</translation>
    </message>
    <message>
        <source>empty; expected a line of column names</source>
        <translation>vuoto; prevista una riga con i nomi delle colonne</translation>
    </message>
    <message>
        <source>a column without a name</source>
        <translation>una colonna senza nome</translation>
    </message>
    <message>
        <source>duplicate column</source>
        <translation>colonna duplicata</translation>
    </message>
    <message>
        <source>%1 fields, but there are %2 columns</source>
        <translation>%1 campi, ma ci sono %2 colonne</translation>
    </message>
    <message>
        <source>%1:1, column %2 (%3): %4</source>
        <translation>%1:1, colonna %2 (%3): %4</translation>
    </message>
    <message>
        <source>the panels of ribbon %1 are not numbered consecutively from 1</source>
        <translation>i pannelli del nastro %1 non sono numerati consecutivamente da 1</translation>
    </message>
    <message>
        <source>%1 is both a supply and a ribbon</source>
        <translation>%1 è sia un materiale sia un nastro</translation>
    </message>
    <message>
        <source>supply %1 has a label length and a continuous format, or neither</source>
        <translation>il materiale %1 ha una lunghezza di etichetta e un formato continuo, o nessuno dei due</translation>
    </message>
    <message>
        <source>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</source>
        <translation>i formati del modello di stampante &quot;%1&quot; non sono numerati consecutivamente da 0</translation>
    </message>
    <message>
        <source>the language 0 is &quot;%1&quot;, not English</source>
        <translation>la lingua 0 è &quot;%1&quot;, non l’inglese</translation>
    </message>
    <message>
        <source>English is missing%1</source>
        <translation>manca l’inglese%1</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row</source>
        <translation>una riga di %1 fa riferimento a una riga mancante</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>danneggiato: %1</translation>
    </message>
    <message>
        <source>its tables are not those of schema version %1</source>
        <translation>le sue tabelle non sono quelle della versione %1 dello schema</translation>
    </message>
    <message>
        <source>%1: not a file, so it is not replaced</source>
        <translation>%1: non è un file, quindi non viene sostituito</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>build creates the supply database FILE from the tables in DIRECTORY.</source>
        <translation>build crea il database dei materiali FILE dalle tabelle in DIRECTORY.</translation>
    </message>
    <message>
        <source>check verifies FILE.</source>
        <translation>check verifica FILE.</translation>
    </message>
    <message>
        <source>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</source>
        <translation>show mostra ciò che FILE contiene su un materiale o un nastro, con i nomi in inglese o nella lingua TAG (&quot;de&quot;, &quot;ja&quot;).</translation>
    </message>
    <message>
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 materiali, %2 nastri, %3 impostazioni di stampa, %4 lingue</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1: corretto, %2</translation>
    </message>
    <message>
        <source>expected build, check or show</source>
        <translation>previsto build, check o show</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected build, check or show</source>
        <translation>comando sconosciuto &quot;%1&quot;; previsto build, check o show</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3</source>
        <translation>%1 richiede %2 argomenti, non %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known language</source>
        <translation>&quot;%1&quot; non è una lingua nota</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>materiale</translation>
    </message>
    <message>
        <source>material</source>
        <translation>materiale</translation>
    </message>
    <message>
        <source>format</source>
        <translation>formato</translation>
    </message>
    <message>
        <source>type</source>
        <translation>tipo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>colore</translation>
    </message>
    <message>
        <source>second colour</source>
        <translation>secondo colore</translation>
    </message>
    <message>
        <source>stripe</source>
        <translation>striscia</translation>
    </message>
    <message>
        <source>width</source>
        <translation>larghezza</translation>
    </message>
    <message>
        <source>length</source>
        <translation>lunghezza</translation>
    </message>
    <message>
        <source>label length</source>
        <translation>lunghezza etichetta</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>separatore</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>orizzontale</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>side by side</source>
        <translation>affiancate</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>spazio</translation>
    </message>
    <message>
        <source>background</source>
        <translation>sfondo</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>printed with</source>
        <translation>stampato con</translation>
    </message>
    <message>
        <source>%1 panel %2: heat %3, offset %4, speed %5, tension %6</source>
        <translation>%1 pannello %2: calore %3, scostamento %4, velocità %5, tensione %6</translation>
    </message>
    <message>
        <source>ribbon</source>
        <translation>nastro</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>pannello</translation>
    </message>
    <message>
        <source>%1: no supply or ribbon &quot;%2&quot;</source>
        <translation>%1: nessun materiale o nastro &quot;%2&quot;</translation>
    </message>
    <message>
        <source>there is no method %1</source>
        <translation>non esiste il metodo %1</translation>
    </message>
    <message>
        <source>the arguments do not fit %1</source>
        <translation>gli argomenti non sono adatti a %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> o </translation>
    </message>
    <message>
        <source>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</source>
        <translation>servizio sconosciuto &quot;%1&quot;; previsto supplyd, m4, printqd, status, un numero o un nome mostrato da list</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>a SERVICE</source>
        <translation>un SERVICE</translation>
    </message>
    <message>
        <source>a SERVICE, a METHOD and its arguments</source>
        <translation>un SERVICE, un METHOD e i suoi argomenti</translation>
    </message>
    <message>
        <source>expected list, describe, call or watch</source>
        <translation>previsto list, describe, call o watch</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; %2</source>
        <translation>comando sconosciuto &quot;%1&quot;; %2</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1: argomenti previsti: %2</translation>
    </message>
    <message>
        <source>Calls the endpoints that run for this user.</source>
        <translation>Chiama gli endpoint in esecuzione per questo utente.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandi:</translation>
    </message>
    <message>
        <source>list the endpoints: name, service, process, application</source>
        <translation>elencare gli endpoint: nome, servizio, processo, applicazione</translation>
    </message>
    <message>
        <source>list the methods and signals of an endpoint</source>
        <translation>elencare i metodi e i segnali di un endpoint</translation>
    </message>
    <message>
        <source>call a method and print its result</source>
        <translation>chiamare un metodo e mostrarne il risultato</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</source>
        <translation>SERVICE è supplyd, m4, printqd, status, un numero o un nome mostrato da list. Gli argomenti per parametri di testo sono presi così come sono, tutti gli altri sono letti come JSON.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>mostrare JSON</translation>
    </message>
    <message>
        <source>wait up to MS milliseconds for an endpoint (10000)</source>
        <translation>attendere un endpoint fino a MS millisecondi (10000)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>mostrare questo aiuto</translation>
    </message>
    <message>
        <source>what follows is not an option</source>
        <translation>ciò che segue non è un’opzione</translation>
    </message>
    <message>
        <source>print a line of JSON for each emission of the signals, or of all signals, until interrupted</source>
        <translation>mostrare una riga JSON per ogni emissione dei segnali, o di tutti i segnali, fino all’interruzione</translation>
    </message>
    <message>
        <source>watch for SECONDS only</source>
        <translation>osservare solo per SECONDS secondi</translation>
    </message>
    <message>
        <source>--for takes a number of seconds</source>
        <translation>--for richiede un numero di secondi</translation>
    </message>
    <message>
        <source>%1 takes no --for</source>
        <translation>%1 non accetta --for</translation>
    </message>
    <message>
        <source>a SERVICE and SIGNALs</source>
        <translation>un SERVICE e nomi SIGNAL</translation>
    </message>
    <message>
        <source>%1: it has no signals</source>
        <translation>%1: non ha segnali</translation>
    </message>
    <message>
        <source>%1: the connection ended; waiting for the endpoint</source>
        <translation>%1: la connessione è terminata; in attesa dell’endpoint</translation>
    </message>
    <message>
        <source>%1: watching again; what changed meanwhile was missed</source>
        <translation>%1: l’osservazione riprende; i cambiamenti avvenuti nel frattempo mancano</translation>
    </message>
    <message>
        <source>--timeout takes a number of milliseconds</source>
        <translation>--timeout richiede un numero di millisecondi</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>opzione sconosciuta %1</translation>
    </message>
    <message>
        <source>--virtual: this build uses the system&apos;s own print spooler</source>
        <translation>--virtual: questa versione usa lo spooler di stampa del sistema</translation>
    </message>
    <message>
        <source>print JSON: an array, or one object per line</source>
        <translation>mostrare JSON: un array o un oggetto per riga</translation>
    </message>
    <message>
        <source>watch: stop after SECONDS; by default, when interrupted</source>
        <translation>watch: terminare dopo SECONDS; altrimenti quando interrotto</translation>
    </message>
    <message>
        <source>append the library&apos;s log to FILE</source>
        <translation>aggiungere il log della libreria a FILE</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>usare le stampanti virtuali descritte da FILE</translation>
    </message>
    <message>
        <source>watch: speed up the virtual printers&apos; story by FACTOR</source>
        <translation>watch: accelerare di FACTOR volte la storia delle stampanti virtuali</translation>
    </message>
    <message>
        <source>title: all codes, with what they mean and what to do</source>
        <translation>title: tutti i codici, cosa significano e cosa fare</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>mostrare la versione</translation>
    </message>
    <message>
        <source>Lists and watches the label printers of the print spooler.</source>
        <translation>Elenca e controlla le stampanti di etichette dello spooler di stampa.</translation>
    </message>
    <message>
        <source>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>status attende finché ogni stampante mostrata ha inviato i suoi dati e sono passati 0,1 secondi senza altri dati, ma non più di 2 secondi. Poi dedica fino a mezzo secondo in più ai dati arrivati entro quel momento.</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</source>
        <translation>I nomi di colori e materiali provengono dal file roll.db accanto a questo programma. Solo la versione per Windows vede le stampanti del sistema; le altre hanno solo stampanti virtuali, per impostazione predefinita sei.</translation>
    </message>
    <message>
        <source>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>I colori vengono omessi se l’output non è un terminale o se NO_COLOR è impostata. I caratteri che potrebbero controllare il terminale sono mostrati come \u001b e simili.</translation>
    </message>
    <message>
        <source>--%1: expected a file name</source>
        <translation>--%1: previsto un nome di file</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</source>
        <translation>--%1: previsto un numero maggiore di 0 e fino a 1000000, trovato &quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected one of %2</source>
        <translation>comando sconosciuto &quot;%1&quot;; previsto uno di %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>%1 takes %2, found %3</source>
        <translation>%1: argomenti previsti: %2; trovati: %3</translation>
    </message>
    <message>
        <source>expected a command: %1</source>
        <translation>previsto un comando: %1</translation>
    </message>
    <message>
        <source>--%1 is valid only with %2</source>
        <translation>--%1 è valido solo con %2</translation>
    </message>
    <message>
        <source>list the printers of the print spooler</source>
        <translation>elencare le stampanti dello spooler di stampa</translation>
    </message>
    <message>
        <source>print a line for each change to the label printers</source>
        <translation>mostrare una riga per ogni modifica delle stampanti di etichette</translation>
    </message>
    <message>
        <source>show the status of all label printers, or of one</source>
        <translation>mostrare lo stato di tutte le stampanti di etichette o di una</translation>
    </message>
    <message>
        <source>at most one printer</source>
        <translation>al massimo una stampante</translation>
    </message>
    <message>
        <source>send a command in the printer&apos;s own language</source>
        <translation>inviare un comando nel linguaggio della stampante</translation>
    </message>
    <message>
        <source>a printer and a command</source>
        <translation>una stampante e un comando</translation>
    </message>
    <message>
        <source>print the title of a status code</source>
        <translation>mostrare il titolo di un codice di stato</translation>
    </message>
    <message>
        <source>a status code or --all</source>
        <translation>un codice di stato o --all</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2</source>
        <translation>impossibile scrivere il log %1: %2</translation>
    </message>
    <message>
        <source>other</source>
        <translation>altro</translation>
    </message>
    <message>
        <source>default</source>
        <translation>predefinita</translation>
    </message>
    <message>
        <source>network</source>
        <translation>rete</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>condivisa</translation>
    </message>
    <message>
        <source>not managed</source>
        <translation>non gestita</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>There are no printers, or the print spooler is not running.</source>
        <translation>Non ci sono stampanti, oppure lo spooler di stampa non è in esecuzione.</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>STAMPANTE</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>MODELLO</translation>
    </message>
    <message>
        <source>PORT</source>
        <translation>PORTA</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>N. DI SERIE</translation>
    </message>
    <message>
        <source>DRIVER</source>
        <translation>DRIVER</translation>
    </message>
    <message>
        <source>FLAGS</source>
        <translation>INDICATORI</translation>
    </message>
    <message>
        <source>none</source>
        <translation>vuoto</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>di tipo sconosciuto</translation>
    </message>
    <message>
        <source>status</source>
        <translation>stato</translation>
    </message>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>supply left</source>
        <translation>resto materiale</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>nastro 1</translation>
    </message>
    <message>
        <source>ribbon 1 left</source>
        <translation>resto nastro 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>nastro 2</translation>
    </message>
    <message>
        <source>ribbon 2 left</source>
        <translation>resto nastro 2</translation>
    </message>
    <message>
        <source>has a ribbon 2</source>
        <translation>ha un nastro 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>firmware</translation>
    </message>
    <message>
        <source>network printer</source>
        <translation>stampante di rete</translation>
    </message>
    <message>
        <source>managed</source>
        <translation>gestita</translation>
    </message>
    <message>
        <source>has been active</source>
        <translation>è stata attiva</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non noto</translation>
    </message>
    <message>
        <source>There are no label printers yet.</source>
        <translation>Non ci sono ancora stampanti di etichette.</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>STATO</translation>
    </message>
    <message>
        <source>SUPPLY</source>
        <translation>MATERIALE</translation>
    </message>
    <message>
        <source>RIBBON 1</source>
        <translation>NASTRO 1</translation>
    </message>
    <message>
        <source>RIBBON 2</source>
        <translation>NASTRO 2</translation>
    </message>
    <message>
        <source>FIRMWARE</source>
        <translation>FIRMWARE</translation>
    </message>
    <message>
        <source>ACTIVE</source>
        <translation>ATTIVA</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>stampante</translation>
    </message>
    <message>
        <source>active</source>
        <translation>attiva</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>errori</translation>
    </message>
    <message>
        <source>ribbons</source>
        <translation>nastri</translation>
    </message>
    <message>
        <source>found</source>
        <translation>trovata</translation>
    </message>
    <message>
        <source>records</source>
        <translation>dati</translation>
    </message>
    <message>
        <source>a printer is in error</source>
        <translation>una stampante è in errore</translation>
    </message>
    <message>
        <source>no printer is in error</source>
        <translation>nessuna stampante è in errore</translation>
    </message>
    <message>
        <source>changed or removed</source>
        <translation>cambiato o rimosso</translation>
    </message>
    <message>
        <source>is the active printer</source>
        <translation>è la stampante attiva</translation>
    </message>
    <message>
        <source>is the active printer but has no record</source>
        <translation>è la stampante attiva, ma non ha un record</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiato</translation>
    </message>
    <message>
        <source>is now watched</source>
        <translation>ora è sotto controllo</translation>
    </message>
    <message>
        <source>no changes</source>
        <translation>nessuna modifica</translation>
    </message>
    <message>
        <source>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</source>
        <translation>Lavoro di stampa %1, &quot;%2&quot;: %3, pagine: %4, byte: %5.</translation>
    </message>
    <message>
        <source>Sent to %1: %2</source>
        <translation>Inviato a %1: %2</translation>
    </message>
    <message>
        <source>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</source>
        <translation>non c’è un record di una stampante &quot;%1&quot;; &quot;vxprintmon status&quot; mostra le stampanti che ne hanno uno</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrotto</translation>
    </message>
    <message>
        <source>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</source>
        <translation>title richiede un codice di stato tra -2147483648 e 2147483647, trovato &quot;%1&quot;</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Cosa fare: %1</translation>
    </message>
    <message>
        <source>title takes a status code or --all, not both</source>
        <translation>title richiede un codice di stato o --all, non entrambi</translation>
    </message>
    <message>
        <source>title takes a status code or --all, found nothing</source>
        <translation>title richiede un codice di stato o --all, non è stato trovato nulla</translation>
    </message>
    <message>
        <source>send: wait until the job was printed or has left the queue</source>
        <translation>send: attendere che il lavoro sia stampato o abbia lasciato la coda</translation>
    </message>
    <message>
        <source>send: also to a printer of another maker, also nothing</source>
        <translation>send: anche a stampanti di altri produttori, anche comandi vuoti</translation>
    </message>
    <message>
        <source>Print job %1, bytes: %2.</source>
        <translation>Lavoro di stampa %1, byte: %2.</translation>
    </message>
    <message>
        <source>interrupted while print job %1 was in the queue of &quot;%2&quot;</source>
        <translation>interrotto mentre il lavoro di stampa %1 era nella coda di &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--force sends it nevertheless.</source>
        <translation>--force lo invia comunque.</translation>
    </message>
    <message>
        <source>the command was not sent: %1</source>
        <translation>il comando non è stato inviato: %1</translation>
    </message>
    <message>
        <source>print job %1 was not printed: %2</source>
        <translation>il lavoro di stampa %1 non è stato stampato: %2</translation>
    </message>
</context>
</TS>
