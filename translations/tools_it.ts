<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>DoctorDialog</name>
    <message>
        <source>Doctor</source>
        <translation>Diagnosi</translation>
    </message>
    <message>
        <source>Doctor: %1</source>
        <translation>Diagnosi: %1</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Controllo in corso…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Che cosa è stato trovato</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Nessun problema.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>Problemi trovati: %1</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
</context>
<context>
    <name>EventModel</name>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Che cosa è successo</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Stampanti di etichette</translation>
    </message>
    <message>
        <source>&amp;Printers</source>
        <translation>&amp;Stampanti</translation>
    </message>
    <message>
        <source>&amp;Look for printers</source>
        <translation>&amp;Cerca stampanti</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Salva un caso per l’assistenza…</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnosi…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Dettagli</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Eventi</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Come il sistema</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Colori</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>&amp;Notifiche</translation>
    </message>
    <message>
        <source>&amp;None for an hour</source>
        <translation>&amp;Nessuna per un’ora</translation>
    </message>
    <message>
        <source>None of the chosen &amp;printer</source>
        <translation>Nessuna della stam&amp;pante scelta</translation>
    </message>
    <message>
        <source>&amp;All printers and kinds again</source>
        <translation>Di nuovo di &amp;tutte le stampanti e di tutti i tipi</translation>
    </message>
    <message>
        <source>&amp;Warn of few labels…</source>
        <translation>Avvisa se restano &amp;poche etichette…</translation>
    </message>
    <message>
        <source>&amp;Stay in the tray when the window is closed</source>
        <translation>&amp;Rimani nell’area di notifica quando la finestra è chiusa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Informazioni…</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>Events, the newest first</source>
        <translation>Eventi, il più recente per primo</translation>
    </message>
    <message>
        <source>Details of the chosen printer</source>
        <translation>Dettagli della stampante scelta</translation>
    </message>
    <message>
        <source>How many printers there are of each state</source>
        <translation>Quante stampanti sono in ciascuno stato</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Salvato: %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>Impossibile salvare %1: %2</translation>
    </message>
    <message>
        <source>Printers: %1 with an error, %2 with a warning, %3 others</source>
        <translation>Stampanti: %1 con errore, %2 con avviso, %3 altre</translation>
    </message>
    <message>
        <source>The queue of %1 could not be opened.</source>
        <translation>Impossibile aprire la coda di %1.</translation>
    </message>
    <message>
        <source>Print a test label</source>
        <translation>Stampa un’etichetta di prova</translation>
    </message>
    <message>
        <source>The command is sent to %1 as it is:</source>
        <translation>Il comando viene inviato così com’è a %1:</translation>
    </message>
    <message>
        <source>The command is in the queue of %1.</source>
        <translation>Il comando è nella coda di %1.</translation>
    </message>
    <message>
        <source>Save a case for support</source>
        <translation>Salva un caso per l’assistenza</translation>
    </message>
    <message>
        <source>Cases (*.vxcase)</source>
        <translation>Casi (*.vxcase)</translation>
    </message>
    <message>
        <source>Warn of few labels</source>
        <translation>Avvisa se restano poche etichette</translation>
    </message>
    <message>
        <source>Warn when fewer labels are left than (0: never):</source>
        <translation>Avvisa quando restano meno etichette di (0: mai):</translation>
    </message>
    <message>
        <source>Show the &amp;printer</source>
        <translation>Mostra la stam&amp;pante</translation>
    </message>
    <message>
        <source>No notices of this p&amp;rinter</source>
        <translation>Nessuna notifica di questa &amp;stampante</translation>
    </message>
    <message>
        <source>No notices of this &amp;kind</source>
        <translation>Nessuna notifica di questo &amp;tipo</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer.</source>
        <translation>Mostra le stampanti di etichette di questo computer.</translation>
    </message>
    <message>
        <source>Version %1, with Qt %2 (used: %3)</source>
        <translation>Versione %1, con Qt %2 (in uso: %3)</translation>
    </message>
    <message>
        <source>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</source>
        <translation>Copyright degli autori di VxPrinterStatus, con licenza MIT. Qt è usato con la GNU Lesser General Public License, versione 3; SQLite è di pubblico dominio. I testi completi sono forniti con il programma.</translation>
    </message>
    <message>
        <source>Label printers: %1</source>
        <translation>Stampanti di etichette: %1</translation>
    </message>
    <message>
        <source>Only for the printers of this computer. These are those of a site, as its agents publish them.</source>
        <translation>Solo per le stampanti di questo computer. Queste sono quelle di una sede, come le pubblicano i suoi agenti.</translation>
    </message>
    <message>
        <source>Shows the label printers of a site, as its agents publish them.</source>
        <translation>Mostra le stampanti di etichette di una sede, come le pubblicano i suoi agenti.</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>Looking for printers…</source>
        <translation>Ricerca delle stampanti…</translation>
    </message>
    <message>
        <source>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</source>
        <translation>Allo spooler di stampa vengono chieste le sue stampanti. Ci vuole più tempo se alcune stampanti di rete non rispondono.</translation>
    </message>
    <message>
        <source>No label printer is installed</source>
        <translation>Nessuna stampante di etichette è installata</translation>
    </message>
    <message>
        <source>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</source>
        <translation>Collegare una stampante via USB, accenderla e installare il driver. Apparirà qui da sola. Le stampanti di altri produttori non vengono mostrate.</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Cerca di nuovo</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>Lo spooler di stampa non è in esecuzione</translation>
    </message>
    <message>
        <source>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</source>
        <translation>Senza di esso non si può stampare nulla e non si sa nulla di nessuna stampante. Avviare il servizio «Spooler di stampa» (services.msc) o riavviare il computer. Le stampanti tornano da sole.</translation>
    </message>
    <message>
        <source>&amp;Show the last known state</source>
        <translation>&amp;Mostra l’ultimo stato noto</translation>
    </message>
    <message>
        <source>You may not manage these printers</source>
        <translation>Non si dispone del permesso di gestire queste stampanti</translation>
    </message>
    <message>
        <source>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</source>
        <translation>Windows comunica il loro stato solo a chi può gestirle. Chiedere a un amministratore il permesso «Gestisci stampante» (proprietà stampante, Sicurezza).</translation>
    </message>
    <message>
        <source>&amp;Show the printers all the same</source>
        <translation>&amp;Mostra comunque le stampanti</translation>
    </message>
    <message>
        <source>Connecting to the broker…</source>
        <translation>Connessione al broker…</translation>
    </message>
    <message>
        <source>Nothing can be read from the broker</source>
        <translation>Non si può leggere nulla dal broker</translation>
    </message>
    <message>
        <source>The connection is tried again, and the printers appear by themselves.</source>
        <translation>La connessione viene ritentata e le stampanti compaiono da sole.</translation>
    </message>
    <message>
        <source>No agent has published a printer</source>
        <translation>Nessun agente ha pubblicato una stampante</translation>
    </message>
    <message>
        <source>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</source>
        <translation>Su ogni computer con stampanti, un agente (vxprintagent) le pubblica su questo broker. Verificare che ne sia in esecuzione uno e che la sua configurazione indichi questo broker e questa sede. Le stampanti compaiono qui da sole.</translation>
    </message>
</context>
<context>
    <name>OverviewBar</name>
    <message>
        <source>%1 error</source>
        <translation>%1 errore</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 errori</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 avviso</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 avvisi</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 informazione</translation>
    </message>
    <message>
        <source>%1 notices</source>
        <translation>%1 informazioni</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 pronte</translation>
    </message>
    <message>
        <source>Show only these printers; press again to show all</source>
        <translation>Mostra solo queste stampanti; premere di nuovo per mostrarle tutte</translation>
    </message>
</context>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>SiteBar</name>
    <message>
        <source>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</source>
        <translation>Nessuna connessione al broker da %1. Tutto è mostrato com’era allora. La connessione viene ritentata.</translation>
    </message>
    <message>
        <source>Agents offline: %1 and %2 more</source>
        <translation>Agenti offline: %1 e altri %2</translation>
    </message>
    <message>
        <source>Agents offline: %1</source>
        <translation>Agenti offline: %1</translation>
    </message>
    <message>
        <source>Messages that cannot be read: %1. The last one: %2</source>
        <translation>Messaggi illeggibili: %1. L’ultimo: %2</translation>
    </message>
    <message>
        <source>There are more printers or agents than this program shows. Messages left out: %1</source>
        <translation>Ci sono più stampanti o agenti di quanti questo programma ne mostri. Messaggi tralasciati: %1</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>&amp;No notices for an hour</source>
        <translation>&amp;Nessuna notifica per un’ora</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>print a log of what happened to printers</source>
        <translation>mostrare un registro di ciò che è accaduto alle stampanti</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>un file</translation>
    </message>
    <message>
        <source>log: only events of the printer NAME and of the spooler</source>
        <translation>log: solo gli eventi della stampante NAME e dello spooler</translation>
    </message>
    <message>
        <source>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</source>
        <translation>log: solo gli eventi da TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (oggi), oppure 30m, 2h o 7d fa</translation>
    </message>
    <message>
        <source>log: only events that are ok, information, warning or error, or worse</source>
        <translation>log: solo gli eventi che sono ok, information, warning o error, o peggiori</translation>
    </message>
    <message>
        <source>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</source>
        <translation>--since: era atteso ad esempio 2026-11-22, 2026-11-22T10:30, 10:30 o 2h, non &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--severity: expected ok, information, warning or error, found &quot;%1&quot;</source>
        <translation>--severity: era atteso ok, information, warning o error, non &quot;%1&quot;</translation>
    </message>
    <message>
        <source>lines that are no events and were left out: %1</source>
        <translation>righe tralasciate perché non sono eventi: %1</translation>
    </message>
    <message>
        <source>There are no such events.</source>
        <translation>Non ci sono eventi di questo tipo.</translation>
    </message>
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
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 materiali, %2 nastri, %3 impostazioni di stampa, %4 lingue</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1: corretto, %2</translation>
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
        <source>status</source>
        <translation>stato</translation>
    </message>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>nastro 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>nastro 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>firmware</translation>
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
        <source>printer</source>
        <translation>stampante</translation>
    </message>
    <message>
        <source>active</source>
        <translation>attiva</translation>
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
    <message>
        <source>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</source>
        <translation>materiali e nastri non hanno nome: dal catalogo %1 non si può leggere nulla; «rolldb check» dice che cosa non va</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</source>
        <translation>materiali e nastri non hanno nome: il catalogo %1 non esiste; metterlo lì o indicarne un altro con --catalogue o VX_ROLL_DB</translation>
    </message>
    <message>
        <source>watch: append what happens to FILE as well</source>
        <translation>watch: aggiungere anche a FILE ciò che accade</translation>
    </message>
    <message>
        <source>watch: print seconds since the start, not the time of day</source>
        <translation>watch: mostrare i secondi dall’inizio invece dell’ora</translation>
    </message>
    <message>
        <source>watch: print every change of a level</source>
        <translation>watch: mostrare ogni variazione di un livello</translation>
    </message>
    <message>
        <source>watch --json: print the signals that a host receives</source>
        <translation>watch --json: mostrare i segnali che riceve un programma host</translation>
    </message>
    <message>
        <source>take the names of supplies and ribbons from FILE</source>
        <translation>prendere da FILE i nomi di materiali e nastri</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>usare le stampanti virtuali descritte da FILE, o quelle incorporate («built-in»)</translation>
    </message>
    <message>
        <source>print this help as JSON</source>
        <translation>mostrare questo aiuto come JSON</translation>
    </message>
    <message>
        <source>print this help, or that of a command</source>
        <translation>mostrare questo aiuto o quello di un comando</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</source>
        <translation>I nomi di colori e materiali provengono dal file roll.db accanto a questo programma o dal catalogo installato con esso, a meno che --catalogue o la variabile d’ambiente VX_ROLL_DB ne indichi un altro. Solo la versione per Windows vede le stampanti del sistema; le altre hanno solo stampanti virtuali: quelle di --virtual, quelle indicate da VX_VIRTUAL_FLEET o sei incorporate.</translation>
    </message>
    <message>
        <source>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Le tabelle si adattano al terminale, alla larghezza indicata da COLUMNS o a 80 colonne; ciò che è abbreviato termina con i puntini di sospensione. I colori vengono omessi se l’output non è un terminale o se NO_COLOR è impostata. I caratteri che potrebbero controllare il terminale sono mostrati come \u001b e simili.</translation>
    </message>
    <message>
        <source>help takes at most one command, found &quot;%1&quot;</source>
        <translation>help accetta al massimo un comando, trovato «%1»</translation>
    </message>
    <message>
        <source>print a line for each thing that happens to the label printers</source>
        <translation>mostrare una riga per ogni cosa che accade alle stampanti di etichette</translation>
    </message>
    <message>
        <source>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</source>
        <translation>Comincia con le stampanti come sono e poi mostra una riga per ogni evento finché non viene interrotto. Se si indicano stampanti, solo ciò che accade a queste. Un livello che cala soltanto viene mostrato al 25, 10 e 5 %. Con --json ogni riga è un oggetto; il primo contiene tutte le stampanti.</translation>
    </message>
    <message>
        <source>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>Nel nome di una stampante maiuscole e minuscole non contano. Con --json attende finché ogni stampante mostrata ha inviato i suoi dati e sono passati 0,1 secondi senza altri dati, ma non più di 2 secondi. Poi dedica fino a mezzo secondo in più ai dati arrivati entro quel momento.</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>non c’è nessuna stampante «%1»; si intendeva %2?</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</source>
        <translation>non c’è nessuna stampante «%1»; «vxprintmon list» mostra tutte le stampanti</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</source>
        <translation>«%1» non ha uno stato: il suo driver «%2» non è del produttore delle stampanti di etichette</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</source>
        <translation>«%1» non ha uno stato: il suo driver «%2» è di un modello non supportato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</source>
        <translation>«%1» non ha uno stato: è offline da quando è stata trovata; accenderla e controllare il cavo</translation>
    </message>
    <message>
        <source>Network printer</source>
        <translation>Stampante di rete</translation>
    </message>
    <message>
        <source>Not managed</source>
        <translation>Non gestita</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and its severity</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>tipo sconosciuto</translation>
    </message>
    <message>
        <source>%1 % %2</source>
        <comment>how much of what is left</comment>
        <translation>%1 % %2</translation>
    </message>
    <message>
        <source>%1, level not known</source>
        <translation>%1, livello non noto</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 label</source>
        <translation>%1 etichetta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etichette</translation>
    </message>
    <message>
        <source>no, it is a network printer</source>
        <translation>no, è una stampante di rete</translation>
    </message>
    <message>
        <source>no, you may not manage it</source>
        <translation>no, non è consentito gestirla</translation>
    </message>
    <message>
        <source>no, it was removed and added again</source>
        <translation>no, è stata rimossa e aggiunta di nuovo</translation>
    </message>
    <message>
        <source>no, it was removed</source>
        <translation>no, è stata rimossa</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altre %2</translation>
    </message>
    <message>
        <source>Offline since they were found, so without a status: %1</source>
        <translation>Offline da quando sono state trovate, quindi senza stato: %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1, resto</translation>
    </message>
    <message>
        <source>Active printer: %1</source>
        <translation>Stampante attiva: %1</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>significato</translation>
    </message>
    <message>
        <source>what to do</source>
        <translation>che cosa fare</translation>
    </message>
    <message>
        <source>boot loader</source>
        <translation>boot loader</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modello</translation>
    </message>
    <message>
        <source>driver</source>
        <translation>driver</translation>
    </message>
    <message>
        <source>port</source>
        <translation>porta</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>numero di serie</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>sorvegliata</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2; it is tried again every second</source>
        <translation>impossibile scrivere il log %1: %2; si riprova ogni secondo</translation>
    </message>
    <message>
        <source>--signals is valid only with --json</source>
        <translation>--signals è valido solo con --json</translation>
    </message>
    <message>
        <source>watch --signals takes no printers: it prints every signal</source>
        <translation>watch --signals non accetta stampanti: mostra tutti i segnali</translation>
    </message>
    <message>
        <source>--relative and --verbose are not valid with --json</source>
        <translation>--relative e --verbose non sono validi con --json</translation>
    </message>
    <message>
        <source> (was %1)</source>
        <comment>after what it is now</comment>
        <translation> (prima %1)</translation>
    </message>
    <message>
        <source>Supply removed</source>
        <translation>Materiale rimosso</translation>
    </message>
    <message>
        <source>Ribbon 1 removed</source>
        <translation>Nastro 1 rimosso</translation>
    </message>
    <message>
        <source>Ribbon 2 removed</source>
        <translation>Nastro 2 rimosso</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>%1 caricato</translation>
    </message>
    <message>
        <source>Ribbon 1: %1 loaded</source>
        <translation>Nastro 1: %1 caricato</translation>
    </message>
    <message>
        <source>Ribbon 2: %1 loaded</source>
        <translation>Nastro 2: %1 caricato</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Firmware %1</translation>
    </message>
    <message>
        <source>now the active printer</source>
        <translation>ora la stampante attiva</translation>
    </message>
    <message>
        <source>Firmware update: %1 %</source>
        <translation>Aggiornamento del firmware: %1 %</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 used up</source>
        <translation>%1 esaurito</translation>
    </message>
    <message>
        <source> (was: %1)</source>
        <comment>a status, after what it is now</comment>
        <translation> (prima: %1)</translation>
    </message>
    <message>
        <source>, was %1</source>
        <comment>a level, after what it is now</comment>
        <translation>, prima %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominata</translation>
    </message>
    <message>
        <source>help takes at most one command</source>
        <translation>help accetta al massimo un comando</translation>
    </message>
    <message>
        <source>print this help, or more about a command</source>
        <translation>mostra questo aiuto, o di più su un comando</translation>
    </message>
    <message>
        <source>empty; expected a text of at most %1 characters</source>
        <translation>vuoto; è atteso un testo di al massimo %1 caratteri</translation>
    </message>
    <message>
        <source>%1: there is also %2; remove one of them</source>
        <translation>%1: esiste anche %2; rimuoverne uno</translation>
    </message>
    <message>
        <source>not a column of this table; expected %1</source>
        <translation>non è una colonna di questa tabella; previste: %1</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language; expected %1 and languages such as en or de</source>
        <translation>né una colonna di questa tabella né una lingua nota; previste %1 e lingue come en o de</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in %2</source>
        <translation>&quot;%1&quot; non è in %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a space; expected a key without spaces</source>
        <translation>&quot;%1&quot; contiene uno spazio; è attesa una chiave senza spazi</translation>
    </message>
    <message>
        <source>format %1 is not in %2</source>
        <translation>il formato %1 non è in %2</translation>
    </message>
    <message>
        <source>material %1 is not in %2</source>
        <translation>il materiale %1 non è in %2</translation>
    </message>
    <message>
        <source>KINDS</source>
        <translation>TIPI</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>RIBBON</source>
        <translation>NASTRO</translation>
    </message>
    <message>
        <source>NUMBERS</source>
        <translation>NUMERI</translation>
    </message>
    <message>
        <source>it has content that the tables cannot express</source>
        <translation>ha contenuti che le tabelle non possono esprimere</translation>
    </message>
    <message>
        <source>%1: files written: %2</source>
        <translation>%1: file scritti: %2</translation>
    </message>
    <message>
        <source>%1: it cannot be written as tables:</source>
        <translation>%1: non può essere scritto come tabelle:</translation>
    </message>
    <message>
        <source>create a supply database from the tables in DIRECTORY</source>
        <translation>crea una base dati dei materiali dalle tabelle in DIRECTORY</translation>
    </message>
    <message>
        <source>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</source>
        <translation>Vengono mostrati tutti gli errori delle tabelle, al massimo 50, e FILE viene scritto solo se non ce ne sono. I campi di una tabella sono separati da virgole, punti e virgola o tabulazioni; con le tabulazioni anche in un file .tsv.</translation>
    </message>
    <message>
        <source>verify a supply database or a directory of tables</source>
        <translation>verifica una base dati dei materiali o una cartella di tabelle</translation>
    </message>
    <message>
        <source>Nothing is written. All that is wrong is printed, up to 50 lines.</source>
        <translation>Non viene scritto nulla. Viene mostrato tutto ciò che è errato, al massimo 50 righe.</translation>
    </message>
    <message>
        <source>list the supplies and ribbons in FILE</source>
        <translation>elenca i materiali e i nastri in FILE</translation>
    </message>
    <message>
        <source>With the numbers in identifiers that stand for them, and their names.</source>
        <translation>Con i numeri che li indicano negli identificatori, e i loro nomi.</translation>
    </message>
    <message>
        <source>print what FILE has about a supply or a ribbon</source>
        <translation>mostra ciò che FILE contiene su un materiale o un nastro</translation>
    </message>
    <message>
        <source>print what the identifier of a roll or a ribbon stands for</source>
        <translation>mostra che cosa indica l’identificatore di un rotolo o di un nastro</translation>
    </message>
    <message>
        <source>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</source>
        <translation>IDENTIFIER è ciò che pubblica un driver: i 20 caratteri di un materiale o il numero di un nastro. Se FILE non lo contiene, lo stato di uscita è 1.</translation>
    </message>
    <message>
        <source>write the tables and pictures of FILE to DIRECTORY</source>
        <translation>scrive le tabelle e le immagini di FILE in DIRECTORY</translation>
    </message>
    <message>
        <source>A database that is built from them has the same bytes.</source>
        <translation>Una base dati creata da queste ha gli stessi byte.</translation>
    </message>
    <message>
        <source>write tables with examples to DIRECTORY</source>
        <translation>scrive tabelle con esempi in DIRECTORY</translation>
    </message>
    <message>
        <source>A start for a catalogue of your own: every column with its name and an example.</source>
        <translation>Un inizio per un catalogo proprio: ogni colonna con il suo nome e un esempio.</translation>
    </message>
    <message>
        <source>Builds and reads the supply databases of printers.</source>
        <translation>Crea e legge le basi dati dei materiali delle stampanti.</translation>
    </message>
    <message>
        <source>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</source>
        <translation>mostra i nomi nella lingua TAG (&quot;de&quot;, &quot;ja&quot;) e non in inglese</translation>
    </message>
    <message>
        <source>replace existing files</source>
        <translation>sostituisce i file esistenti</translation>
    </message>
    <message>
        <source>not UTF-8 text; save the table as UTF-8</source>
        <translation>non è testo UTF-8; salvare la tabella come UTF-8</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row of %2</source>
        <translation>una riga di %1 rimanda a una riga mancante di %2</translation>
    </message>
    <message>
        <source>English is missing</source>
        <translation>manca l’inglese</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 esiste già; --force lo sostituisce</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>impossibile creare la cartella</translation>
    </message>
    <message>
        <source>not a directory</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what a printer reports when nothing is loaded</source>
        <translation>&quot;%1&quot; è ciò che segnala una stampante quando non è caricato nulla</translation>
    </message>
    <message>
        <source>no supply of the kind %1</source>
        <translation>nessun materiale del tipo %1</translation>
    </message>
    <message>
        <source>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</source>
        <translation>Rotolo %1 del tipo %2, lungo %3 piedi (%4 pollici) da nuovo.</translation>
    </message>
    <message>
        <source>The catalogue has another length, so the library cannot tell how much of the roll is left.</source>
        <translation>Il catalogo ha un’altra lunghezza, quindi la libreria non può dire quanto resta del rotolo.</translation>
    </message>
    <message>
        <source>no ribbon with the number %1</source>
        <translation>nessun nastro con il numero %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a SKU; show prints what the file has about it</source>
        <translation>&quot;%1&quot; è uno SKU; show mostra ciò che il file contiene al riguardo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</source>
        <translation>&quot;%1&quot; non è un identificatore; sono attesi i 20 caratteri di un materiale (8 cifre esadecimali, 6 decimali e 6 esadecimali) o il numero di un nastro da 1 a %2</translation>
    </message>
    <message>
        <source>%1; similar: %2</source>
        <translation>%1; simili: %2</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... e altri %1</translation>
    </message>
    <message>
        <source>kinds</source>
        <translation>tipi</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 byte</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>numeri</translation>
    </message>
    <message>
        <source>prints on</source>
        <translation>stampa su</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</source>
        <translation>SERVICE è supplyd, m4, printqd, status, un numero o un nome mostrato da list.</translation>
    </message>
    <message>
        <source>An endpoint that does not answer is listed too, with the reason in place of its process.</source>
        <translation>Viene elencato anche un endpoint che non risponde, con il motivo al posto del suo processo.</translation>
    </message>
    <message>
        <source>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</source>
        <translation>Gli argomenti per parametri di testo sono presi così come sono, tutti gli altri sono letti come JSON. Fra più metodi con quel nome viene chiamato quello i cui parametri corrispondono agli argomenti.</translation>
    </message>
    <message>
        <source>If the endpoint goes away, watch waits for it and goes on.</source>
        <translation>Se l’endpoint scompare, watch lo attende e prosegue.</translation>
    </message>
    <message>
        <source>check everything from the spooler to the catalogue</source>
        <translation>controllare tutto, dallo spooler al catalogo</translation>
    </message>
    <message>
        <source>show all label printers in a live table</source>
        <translation>mostrare tutte le stampanti di etichette in una tabella aggiornata</translation>
    </message>
    <message>
        <source>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</source>
        <translation>Avviare il servizio «Spooler»: eseguire «net start spooler» come amministratore.</translation>
    </message>
    <message>
        <source>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</source>
        <translation>Riavviare il servizio «Spooler»: eseguire «net stop spooler» e «net start spooler» come amministratore.</translation>
    </message>
    <message>
        <source>Connect the printer by USB, switch it on and install its driver.</source>
        <translation>Collegare la stampante tramite USB, accenderla e installare il driver.</translation>
    </message>
    <message>
        <source>Remove the printer from Windows and install it again with its driver.</source>
        <translation>Rimuovere la stampante da Windows e installarla di nuovo con il suo driver.</translation>
    </message>
    <message>
        <source>Take the name from the output of &quot;vxprintmon list&quot;.</source>
        <translation>Prendere il nome dall’output di «vxprintmon list».</translation>
    </message>
    <message>
        <source>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</source>
        <translation>Chiedere a un amministratore il permesso di gestire questa stampante, nelle proprietà della stampante alla voce «Sicurezza».</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</source>
        <translation>Aprire la coda della stampante in Windows e disattivare «Usa stampante offline» nel suo menu.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its USB cable at both ends.</source>
        <translation>Accendere la stampante e controllare il cavo USB a entrambe le estremità.</translation>
    </message>
    <message>
        <source>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</source>
        <translation>Collegare la stampante a questo computer tramite USB oppure eseguire il programma sul computer a cui è collegata.</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</source>
        <translation>Aprire la coda della stampante in Windows. Riprenderla se è sospesa e risolvere ciò che segnala.</translation>
    </message>
    <message>
        <source>Switch the printer off and on again. If that does not help, install its current driver.</source>
        <translation>Spegnere e riaccendere la stampante. Se non serve, installare il driver attuale.</translation>
    </message>
    <message>
        <source>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</source>
        <translation>Ricollegare il cavo USB della stampante oppure scegliere la porta su cui si trova nelle proprietà della stampante alla voce «Porte».</translation>
    </message>
    <message>
        <source>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</source>
        <translation>Mettere un file roll.db accanto al programma oppure indicarne uno con --catalogue o VX_ROLL_DB. «rolldb build» ne crea uno, «rolldb check» dice che cosa non va.</translation>
    </message>
    <message>
        <source>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</source>
        <translation>Procurarsi un roll.db attuale oppure aggiungere alle sue tabelle ciò che è caricato ed eseguire «rolldb build».</translation>
    </message>
    <message>
        <source>If other programs are to ask for the printers, start the program that watches them.</source>
        <translation>Se altri programmi devono interrogare le stampanti, avviare il programma che le sorveglia.</translation>
    </message>
    <message>
        <source>End the program that does not answer, and start it again.</source>
        <translation>Chiudere il programma che non risponde e riavviarlo.</translation>
    </message>
    <message>
        <source>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</source>
        <translation>Chiedere a un amministratore di rimuovere ciò che l’altro utente ha messo lì.</translation>
    </message>
    <message>
        <source>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</source>
        <translation>Non c’è nulla da fare, a meno che questa sia una stampante di etichette da sorvegliare: in tal caso installare il suo driver.</translation>
    </message>
    <message>
        <source>Nothing needs to be done: not every printer has this value.</source>
        <translation>Non c’è nulla da fare: non tutte le stampanti hanno questo valore.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>Tutto è in ordine.</translation>
    </message>
    <message>
        <source>Everything else is in order.</source>
        <translation>Tutto il resto è in ordine.</translation>
    </message>
    <message>
        <source>Driver values not published: %1.</source>
        <translation>Valori non pubblicati dal driver: %1.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>Non c’è nessuna stampante «%1».</translation>
    </message>
    <message>
        <source>Similar names: %1.</source>
        <translation>Nomi simili: %1.</translation>
    </message>
    <message>
        <source>problems found: %1</source>
        <translation>problemi trovati: %1</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is not running (state %1).</source>
        <translation>Il servizio «Spooler» non è in esecuzione (stato %1).</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is running.</source>
        <translation>Il servizio «Spooler» è in esecuzione.</translation>
    </message>
    <message>
        <source>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</source>
        <translation>Lo spooler di stampa elenca una stampante senza nome, porta o driver, quindi la libreria non può cercare stampanti.</translation>
    </message>
    <message>
        <source>The print spooler lists no label printer that can be watched. Printers: %1.</source>
        <translation>Lo spooler di stampa non elenca nessuna stampante di etichette che si possa sorvegliare. Stampanti: %1.</translation>
    </message>
    <message>
        <source>The print spooler answers. Printers: %1, label printers: %2.</source>
        <translation>Lo spooler di stampa risponde. Stampanti: %1, stampanti di etichette: %2.</translation>
    </message>
    <message>
        <source>The device registry has no USB device of a label printer.</source>
        <translation>Il registro dei dispositivi non contiene alcun dispositivo USB di una stampante di etichette.</translation>
    </message>
    <message>
        <source>USB devices of class %1: %2.</source>
        <translation>Dispositivi USB della classe %1: %2.</translation>
    </message>
    <message>
        <source>There is no catalogue %1.</source>
        <translation>Il catalogo %1 non esiste.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Il catalogo %1 non può essere letto: %2.</translation>
    </message>
    <message>
        <source>The file %1 is no supply catalogue.</source>
        <translation>Il file %1 non è un catalogo di materiali.</translation>
    </message>
    <message>
        <source>The catalogue %1 has the schema version %2; only version %3 can be read.</source>
        <translation>Il catalogo %1 ha la versione di schema %2; si può leggere solo la versione %3.</translation>
    </message>
    <message>
        <source>The catalogue %1 is damaged or empty.</source>
        <translation>Il catalogo %1 è danneggiato o vuoto.</translation>
    </message>
    <message>
        <source>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</source>
        <translation>Catalogo %1, versione di schema %2. Materiali: %3, nastri: %4.</translation>
    </message>
    <message>
        <source>The endpoint %1 is not running.</source>
        <translation>L’endpoint %1 non è in esecuzione.</translation>
    </message>
    <message>
        <source>The endpoint %1 does not answer: %2.</source>
        <translation>L’endpoint %1 non risponde: %2.</translation>
    </message>
    <message>
        <source>The endpoint %1 answers: %2, process %3.</source>
        <translation>L’endpoint %1 risponde: %2, processo %3.</translation>
    </message>
    <message>
        <source>%1: not published; this model has one ribbon</source>
        <translation>%1: non pubblicato; questo modello ha un solo nastro</translation>
    </message>
    <message>
        <source>%1: not published</source>
        <translation>%1: non pubblicato</translation>
    </message>
    <message>
        <source>%1; expected the type %2</source>
        <translation>%1; tipo previsto: %2</translation>
    </message>
    <message>
        <source>%1; expected %2 to %3 bytes</source>
        <translation>%1; previsti da %2 a %3 byte</translation>
    </message>
    <message>
        <source>%1; a number up to %2 is plausible</source>
        <translation>%1; è plausibile un numero fino a %2</translation>
    </message>
    <message>
        <source>The status code &quot;%1&quot; is not a number.</source>
        <translation>Il codice di stato «%1» non è un numero.</translation>
    </message>
    <message>
        <source>Status %1: %2. %3</source>
        <translation>Stato %1: %2. %3</translation>
    </message>
    <message>
        <source>%1: nothing is loaded.</source>
        <translation>%1: non è caricato nulla.</translation>
    </message>
    <message>
        <source>%1: the catalogue does not know %2.</source>
        <translation>%1: il catalogo non conosce %2.</translation>
    </message>
    <message>
        <source>%1: %2 is %3 in the catalogue.</source>
        <translation>%1: %2 è %3 nel catalogo.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</source>
        <translation>Il driver «%1» è di un altro produttore, quindi la stampante non viene sorvegliata.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</source>
        <translation>Il driver «%1» è di un modello non supportato, quindi la stampante non viene sorvegliata.</translation>
    </message>
    <message>
        <source>Model %1, driver &quot;%2&quot;.</source>
        <translation>Modello %1, driver «%2».</translation>
    </message>
    <message>
        <source>You may manage the printer.</source>
        <translation>L’utente può gestire la stampante.</translation>
    </message>
    <message>
        <source>You may not manage the printer, so it is not watched.</source>
        <translation>L’utente non può gestire la stampante, quindi non viene sorvegliata.</translation>
    </message>
    <message>
        <source>The printer is reached over a network (port %1), so it is listed, but not watched.</source>
        <translation>La stampante è raggiunta tramite la rete (porta %1), quindi viene elencata ma non sorvegliata.</translation>
    </message>
    <message>
        <source>No USB device of a label printer is on the printer&apos;s port %1.</source>
        <translation>Sulla porta %1 della stampante non c’è alcun dispositivo USB di una stampante di etichette.</translation>
    </message>
    <message>
        <source>Port %1, with the device %2.</source>
        <translation>Porta %1, con il dispositivo %2.</translation>
    </message>
    <message>
        <source>The printer is set to be used offline.</source>
        <translation>La stampante è impostata per l’uso offline.</translation>
    </message>
    <message>
        <source>Windows reports the printer offline.</source>
        <translation>Windows segnala che la stampante è offline.</translation>
    </message>
    <message>
        <source>The printer is online.</source>
        <translation>La stampante è online.</translation>
    </message>
    <message>
        <source>The queue reports nothing.</source>
        <translation>La coda non segnala nulla.</translation>
    </message>
    <message>
        <source>The queue reports: %1.</source>
        <translation>La coda segnala: %1.</translation>
    </message>
    <message>
        <source>%1 failed: %2 (error %3).</source>
        <translation>%1 non riuscita: %2 (errore %3).</translation>
    </message>
    <message>
        <source>top draws on a terminal, but its input or output is none; use status, or top --json</source>
        <translation>top disegna su un terminale, ma il suo input o output non lo è; usare status o top --json</translation>
    </message>
    <message>
        <source>the terminal cannot be used: %1</source>
        <translation>il terminale non può essere usato: %1</translation>
    </message>
    <message>
        <source>this console does not know escape sequences; use that of Windows 10 or newer</source>
        <translation>questa console non conosce le sequenze di escape; usare quella di Windows 10 o successivo</translation>
    </message>
    <message>
        <source>Printers: %1</source>
        <translation>Stampanti: %1</translation>
    </message>
    <message>
        <source>with errors: %1</source>
        <translation>con errori: %1</translation>
    </message>
    <message>
        <source>shown: %1 to %2</source>
        <translation>mostrate: da %1 a %2</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>rimossa</translation>
    </message>
    <message>
        <source>q quit</source>
        <translation>q esci</translation>
    </message>
    <message>
        <source>s by severity</source>
        <translation>s per gravità</translation>
    </message>
    <message>
        <source>n by name</source>
        <translation>n per nome</translation>
    </message>
    <message>
        <source>l by level</source>
        <translation>l per livello</translation>
    </message>
    <message>
        <source>arrows, Page Up, Page Down: scroll</source>
        <translation>frecce, Pag su, Pag giù: scorrere</translation>
    </message>
    <message>
        <source>a file to read and a file to write</source>
        <translation>un file da leggere e un file da scrivere</translation>
    </message>
    <message>
        <source>case: expected show, explain, redact or verify, found &quot;%1&quot;</source>
        <translation>case: atteso show, explain, redact o verify, trovato &quot;%1&quot;</translation>
    </message>
    <message>
        <source>line %1, after %2 s</source>
        <translation>riga %1, dopo %2 s</translation>
    </message>
    <message>
        <source>Signals and log lines that are about no printer: the first difference is at number %1</source>
        <translation>Segnali e righe del registro che non riguardano alcuna stampante: la prima differenza è al numero %1</translation>
    </message>
    <message>
        <source>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</source>
        <translation>Segnali e righe del registro di &quot;%1&quot;: la prima differenza è al numero %2</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>registrato</translation>
    </message>
    <message>
        <source>replayed</source>
        <translation>riprodotto</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2 and more: %3</source>
        <translation>Prove, da %1: righe %2 e altre: %3</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2</source>
        <translation>Prove, da %1: righe %2</translation>
    </message>
    <message>
        <source>Nothing in this case is recognised.</source>
        <translation>In questo caso non viene riconosciuto nulla.</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>byte %1: %2</translation>
    </message>
    <message>
        <source>expected an object with the list &quot;findings&quot;</source>
        <translation>atteso un oggetto con l&apos;elenco &quot;findings&quot;</translation>
    </message>
    <message>
        <source>there are more than %1 findings</source>
        <translation>ci sono più di %1 riscontri</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2</source>
        <translation>&quot;%1&quot; deve essere %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>non esiste il membro &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un testo</translation>
    </message>
    <message>
        <source>a condition or a list of conditions</source>
        <translation>una condizione o un elenco di condizioni</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>un elenco di testi</translation>
    </message>
    <message>
        <source>a number of seconds</source>
        <translation>un numero di secondi</translation>
    </message>
    <message>
        <source>a text, or texts by their languages with &quot;en&quot; among them</source>
        <translation>un testo, o testi per lingua con &quot;en&quot; fra questi</translation>
    </message>
    <message>
        <source>%1: the file is larger than %2 bytes</source>
        <translation>%1: il file supera %2 byte</translation>
    </message>
    <message>
        <source>%1: there is such a file already; name another one</source>
        <translation>%1: il file esiste già; indicarne un altro</translation>
    </message>
    <message>
        <source>%1: lines written: %2, left out: %3</source>
        <translation>%1: righe scritte: %2, omesse: %3</translation>
    </message>
    <message>
        <source>Read it before you send it: it is plain text.</source>
        <translation>Leggerlo prima di inviarlo: è testo semplice.</translation>
    </message>
    <message>
        <source>a monitoring thread does not come to rest</source>
        <translation>un thread di sorveglianza non si ferma</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1, for %2</source>
        <translation>%1, per %2</translation>
    </message>
    <message>
        <source>with</source>
        <translation>con</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contiene</translation>
    </message>
    <message>
        <source>steps: %1, signals: %2, log lines: %3</source>
        <translation>passi: %1, segnali: %2, righe del registro: %3</translation>
    </message>
    <message>
        <source>names</source>
        <translation>nomi</translation>
    </message>
    <message>
        <source>replaced by others</source>
        <translation>sostituiti da altri</translation>
    </message>
    <message>
        <source>as they are; &quot;vxprintmon case redact&quot; replaces them</source>
        <translation>così come sono; &quot;vxprintmon case redact&quot; li sostituisce</translation>
    </message>
    <message>
        <source>end</source>
        <translation>fine</translation>
    </message>
    <message>
        <source>missing: the recording was cut short</source>
        <translation>manca: la registrazione è stata interrotta</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>più veloce</translation>
    </message>
    <message>
        <source>how often values changed faster than they were read: %1</source>
        <translation>volte in cui i valori sono cambiati più velocemente di quanto venissero letti: %1</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Avvisi ed errori</translation>
    </message>
    <message>
        <source>What was loaded</source>
        <translation>Che cosa era caricato</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>non presente</translation>
    </message>
    <message>
        <source>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</source>
        <translation>questo programma non ha stampanti virtuali e non può riprodurre un caso; eseguire &quot;vxprintmon case verify&quot; su Linux</translation>
    </message>
    <message>
        <source>The recording was cut short; it is compared up to there.</source>
        <translation>La registrazione è stata interrotta; viene confrontata fin lì.</translation>
    </message>
    <message>
        <source>No signals were recorded; only the log is compared.</source>
        <translation>Non sono stati registrati segnali; viene confrontato solo il registro.</translation>
    </message>
    <message>
        <source>The same: %1 signals and %2 log lines in %3 steps.</source>
        <translation>Uguale: %1 segnali e %2 righe del registro in %3 passi.</translation>
    </message>
    <message>
        <source>the library does something else than was recorded</source>
        <translation>la libreria fa qualcosa di diverso da ciò che è stato registrato</translation>
    </message>
    <message>
        <source>case explain: recognise what the table FILE describes as well</source>
        <translation>case explain: riconoscere anche ciò che descrive la tabella FILE</translation>
    </message>
    <message>
        <source>show, explain, redact or verify a case file</source>
        <translation>mostrare, spiegare, anonimizzare o verificare un file di caso</translation>
    </message>
    <message>
        <source>an action and one or two files</source>
        <translation>un&apos;azione e uno o due file</translation>
    </message>
    <message>
        <source>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</source>
        <translation>&quot;case show FILE&quot; racconta che cosa contiene un file di caso. &quot;case explain FILE&quot; nomina i guasti che riconosce, con le righe che li mostrano e che cosa fare. &quot;case redact IN OUT&quot; scrive una copia senza nomi di persone, computer e stampanti, numeri di serie e indirizzi. &quot;case verify FILE&quot; riproduce il caso e confronta ciò che la libreria fa ora con ciò che è stato registrato.</translation>
    </message>
    <message>
        <source>%1: its catalogue cannot be written to a temporary file: %2</source>
        <translation>%1: impossibile scrivere il suo catalogo in un file temporaneo: %2</translation>
    </message>
    <message>
        <source>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</source>
        <translation>%1:%2: una riga non si adatta alla tabella &quot;%3&quot; di un catalogo: %4</translation>
    </message>
    <message>
        <source>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</source>
        <translation>record: mantenere il file sotto SIZE, ad esempio 64M; conserva allora l&apos;inizio e la parte più recente</translation>
    </message>
    <message>
        <source>record: keep names, serial numbers and addresses as they are</source>
        <translation>record: lasciare nomi, numeri di serie e indirizzi così come sono</translation>
    </message>
    <message>
        <source>record what printers do, for those who help</source>
        <translation>registrare che cosa fanno le stampanti, per chi dà assistenza</translation>
    </message>
    <message>
        <source>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</source>
        <translation>Registra, accanto ad altri programmi che usano le stampanti, tutto ciò che lo spooler di stampa comunica alla libreria e ciò che la libreria ne fa, finché non viene interrotto. FILE è completo anche dopo un arresto anomalo ed è un file di caso per &quot;case&quot;, --virtual e chi dà assistenza. Non deve esistere. Ogni mezzo minuto mostra che cosa ha registrato.</translation>
    </message>
    <message>
        <source>%1  printers %2, changes %3, signals %4, log lines %5, %6</source>
        <translation>%1  stampanti %2, modifiche %3, segnali %4, righe del registro %5, %6</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifiche</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Segnali</translation>
    </message>
    <message>
        <source>Log lines</source>
        <translation>Righe del registro</translation>
    </message>
    <message>
        <source>Faster than read</source>
        <translation>Più veloci della lettura</translation>
    </message>
    <message>
        <source>Left out to keep the limit</source>
        <translation>Omesso per il limite</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Non scritto</translation>
    </message>
    <message>
        <source>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</source>
        <translation>Il file contiene i nomi di stampanti, persone e computer. &quot;vxprintmon case redact&quot; li toglie.</translation>
    </message>
    <message>
        <source>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</source>
        <translation>Nomi, numeri di serie e indirizzi sono sostituiti. &quot;vxprintmon case show&quot; mostra che cosa contiene il file.</translation>
    </message>
    <message>
        <source>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</source>
        <translation>--limit: attesa una dimensione da 1M a 1G, ad esempio 64M, trovato &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 exists and is not replaced; choose another name, or delete it first</source>
        <translation>%1 esiste e non viene sostituito; scegliere un altro nome o eliminarlo prima</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>impossibile creare %1: %2</translation>
    </message>
    <message>
        <source>Recording into %1.</source>
        <translation>Registrazione in %1.</translation>
    </message>
    <message>
        <source>Recording into %1, until it is interrupted (Ctrl-C).</source>
        <translation>Registrazione in %1, fino all&apos;interruzione (Ctrl-C).</translation>
    </message>
    <message>
        <source>cannot write %1: %2; it is tried again every second</source>
        <translation>impossibile scrivere %1: %2; si riprova ogni secondo</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>watch: also record what is used, in the user&apos;s history or --file</source>
        <translation>watch: registrare anche ciò che viene consumato, nella cronologia dell’utente o in --file</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets (CSV)</source>
        <translation>history: stampare una tabella per fogli di calcolo (CSV)</translation>
    </message>
    <message>
        <source>print what printers have used</source>
        <translation>mostrare ciò che le stampanti hanno consumato</translation>
    </message>
    <message>
        <source>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</source>
        <translation>Stampa una riga per ogni rotolo e ogni nastro: che cosa era caricato, da quando a quando, quanto ne è stato consumato e quanto al giorno in media. Una stampante si indica con il nome o con il numero di serie. «vxprintmon watch --history» registra tutto questo.</translation>
    </message>
    <message>
        <source>say when rolls and ribbons will end</source>
        <translation>dire quando finiranno rotoli e nastri</translation>
    </message>
    <message>
        <source>say whether a job fits: the right supply and ribbon, and enough</source>
        <translation>dire se un lavoro è possibile: materiale e nastro giusti, e a sufficienza</translation>
    </message>
    <message>
        <source>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</source>
        <translation>una stampante, lo SKU di un materiale, un numero di etichette e SKU di nastri</translation>
    </message>
    <message>
        <source>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</source>
        <translation>Lo stato di uscita è 0 se il lavoro si può stampare con ciò che è caricato, 3 se no, e 4 se non si sa. Ogni nastro indicato deve essere caricato; se non ne è indicato nessuno, basta un nastro caricato adatto al materiale e sufficiente.</translation>
    </message>
    <message>
        <source>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</source>
        <translation>enough accetta un numero di etichette tra 1 e 2147483647, trovato «%1»</translation>
    </message>
    <message>
        <source>the catalogue has no %1</source>
        <translation>il catalogo non ha %1</translation>
    </message>
    <message>
        <source>the catalogue has no %1; did you mean %2?</source>
        <translation>il catalogo non ha %1; si intendeva %2?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>two durations</comment>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>POSTO</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>RESTA</translation>
    </message>
    <message>
        <source>LASTS ABOUT</source>
        <translation>DURA CIRCA</translation>
    </message>
    <message>
        <source>PROBABLY</source>
        <translation>PROBABILMENTE</translation>
    </message>
    <message>
        <source>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</source>
        <translation>le previsioni richiedono una cronologia dei consumi; «vxprintmon watch --history» la registra</translation>
    </message>
    <message>
        <source>over 2 years</source>
        <translation>oltre 2 anni</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 g</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>non ancora noto</translation>
    </message>
    <message>
        <source>the history cannot be read: %1</source>
        <translation>la cronologia non si può leggere: %1</translation>
    </message>
    <message>
        <source>still loaded</source>
        <translation>ancora caricato</translation>
    </message>
    <message>
        <source>LOADED</source>
        <translation>CARICATO</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>DAL</translation>
    </message>
    <message>
        <source>UNTIL</source>
        <translation>AL</translation>
    </message>
    <message>
        <source>USED</source>
        <translation>USATO</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>ETICHETTE</translation>
    </message>
    <message>
        <source>A DAY</source>
        <translation>AL GIORNO</translation>
    </message>
    <message>
        <source> (serial number %1)</source>
        <translation> (numero di serie %1)</translation>
    </message>
    <message>
        <source>Changes that could not be recorded: %1, from %2 to %3</source>
        <translation>Cambiamenti che non è stato possibile registrare: %1, dal %2 al %3</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;</source>
        <translation>la cronologia non contiene alcuna stampante «%1»</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>la cronologia non contiene alcuna stampante «%1»; si intendeva %2?</translation>
    </message>
    <message>
        <source>--csv and --json are not valid together</source>
        <translation>--csv e --json non si possono usare insieme</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</source>
        <translation>Non è stato ancora registrato nulla. «vxprintmon watch --history» registra ciò che viene consumato.</translation>
    </message>
    <message>
        <source>the history was damaged, is now called %1, and has been begun anew: %2</source>
        <translation>la cronologia era danneggiata, ora si chiama %1 ed è stata ricominciata: %2</translation>
    </message>
    <message>
        <source>cannot write the history %1</source>
        <translation>impossibile scrivere la cronologia %1</translation>
    </message>
    <message>
        <source>cannot write the history %1; it is tried again every second</source>
        <translation>impossibile scrivere la cronologia %1; si riprova ogni secondo</translation>
    </message>
    <message>
        <source>%1 lasts</source>
        <translation>%1: durata</translation>
    </message>
    <message>
        <source>about %1, probably %2 to %3</source>
        <translation>circa %1, probabilmente da %2 a %3</translation>
    </message>
    <message>
        <source>LASTS</source>
        <translation>DURA</translation>
    </message>
    <message>
        <source>--file is valid only with --history</source>
        <translation>--file è valido solo con --history</translation>
    </message>
    <message>
        <source>history, forecast, watch --history: FILE in place of the user&apos;s history</source>
        <translation>history, forecast, watch --history: FILE al posto della cronologia dell’utente</translation>
    </message>
    <message>
        <source>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</source>
        <translation>watch, forecast: avvisare quando su un rotolo restano meno etichette (LABELS); watch: 100 se non indicato, 0 per mai</translation>
    </message>
    <message>
        <source>watch, forecast: warn of rolls that have fewer LABELS than a job needs</source>
        <translation>watch, forecast: avvisare dei rotoli che hanno meno etichette (LABELS) di quante ne servono a un lavoro</translation>
    </message>
    <message>
        <source>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</source>
        <translation>watch, forecast: avvisare di ciò che probabilmente finirà prima del turno; TIMES, ad esempio 14:00,22:00</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</source>
        <translation>--%1: previsto un numero intero da %2 a 2147483647, trovato &quot;%3&quot;</translation>
    </message>
    <message>
        <source>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</source>
        <translation>--%1: previsti orari come 14:00,22:00, trovato &quot;%2&quot;</translation>
    </message>
    <message>
        <source>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</source>
        <translation>Impara dalla cronologia dell’utente, registrata da «vxprintmon watch --history». In quattro casi su cinque, ciò che è caricato finisce tra i due tempi dell’ultima colonna. Con --warn-below, --job o --shift-end mostra anche di che cosa avviserebbe «watch».</translation>
    </message>
    <message>
        <source>%1: its catalogue can only be played with a supply database of the product itself</source>
        <translation>%1: il suo catalogo può essere riprodotto solo con una banca dati dei materiali del prodotto stesso</translation>
    </message>
    <message>
        <source>lines left out from %1 to %2: %3</source>
        <translation>righe omesse da %1 a %2: %3</translation>
    </message>
    <message>
        <source>AT THE BEGINNING</source>
        <translation>ALL&apos;INIZIO</translation>
    </message>
    <message>
        <source>AT THE END</source>
        <translation>ALLA FINE</translation>
    </message>
    <message>
        <source>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</source>
        <translation>--language: atteso en, de, es, fr, it, ja o zh_CN, trovato «%1»</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>impossibile scrivere l’immagine %1</translation>
    </message>
    <message>
        <source>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>mostrare le stampanti virtuali descritte da FILE, o quelle incorporate («built-in»)</translation>
    </message>
    <message>
        <source>speed up the virtual printers&apos; story by FACTOR</source>
        <translation>accelerare di FACTOR volte la storia delle stampanti virtuali</translation>
    </message>
    <message>
        <source>record what is used in FILE, and show it</source>
        <translation>registrare il consumo in FILE e mostrarlo</translation>
    </message>
    <message>
        <source>keep the settings of the window in FILE</source>
        <translation>conservare in FILE le impostazioni della finestra</translation>
    </message>
    <message>
        <source>start without an open window</source>
        <translation>avviare senza aprire la finestra</translation>
    </message>
    <message>
        <source>speak the language TAG: en, de, es, fr, it, ja or zh_CN</source>
        <translation>usare la lingua TAG: en, de, es, fr, it, ja o zh_CN</translation>
    </message>
    <message>
        <source>use the colours SCHEME: light, dark or system</source>
        <translation>usare i colori SCHEME: light (chiaro), dark (scuro) o system</translation>
    </message>
    <message>
        <source>open the window in this size</source>
        <translation>aprire la finestra con questa dimensione</translation>
    </message>
    <message>
        <source>save a picture of the window in FILE.png and end</source>
        <translation>salvare un’immagine della finestra in FILE.png e terminare</translation>
    </message>
    <message>
        <source>with --screenshot: SECONDS after the start, 3 by default</source>
        <translation>con --screenshot: SECONDS dopo l’avvio, 3 se non indicato</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer in a window.</source>
        <translation>Mostra in una finestra le stampanti di etichette di questo computer.</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</source>
        <translation>--%1: atteso un numero maggiore di 0 e fino a %2, trovato «%3»</translation>
    </message>
    <message>
        <source>--size: expected such as 1200x800, found &quot;%1&quot;</source>
        <translation>--size: atteso ad esempio 1200x800, trovato «%1»</translation>
    </message>
    <message>
        <source>--%1: expected a value</source>
        <translation>--%1: atteso un valore</translation>
    </message>
    <message>
        <source>expected options only, found &quot;%1&quot;</source>
        <translation>attese solo opzioni, trovato «%1»</translation>
    </message>
    <message>
        <source>--after goes with --screenshot</source>
        <translation>--after va con --screenshot</translation>
    </message>
    <message>
        <source>--colors: expected light, dark or system, found &quot;%1&quot;</source>
        <translation>--colors: atteso light, dark o system, trovato «%1»</translation>
    </message>
    <message>
        <source>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</source>
        <translation>Sorveglia le stampanti di etichette di questo computer e pubblica ciò che vede su un broker e per un sistema di monitoraggio.</translation>
    </message>
    <message>
        <source>watch and publish until interrupted</source>
        <translation>sorvegliare e pubblicare fino all’interruzione</translation>
    </message>
    <message>
        <source>say what is wrong with a configuration</source>
        <translation>dire che cosa non va in una configurazione</translation>
    </message>
    <message>
        <source>install the agent as a Windows service that runs with the configuration</source>
        <translation>installare l’agente come servizio di Windows che usa la configurazione</translation>
    </message>
    <message>
        <source>remove the Windows service</source>
        <translation>rimuovere il servizio di Windows</translation>
    </message>
    <message>
        <source>the configuration, a JSON file</source>
        <translation>la configurazione, un file JSON</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>usare le stampanti virtuali descritte da FILE</translation>
    </message>
    <message>
        <source>play the story of virtual printers FACTOR times as fast</source>
        <translation>riprodurre la storia delle stampanti virtuali FACTOR volte più veloce</translation>
    </message>
    <message>
        <source>--speed takes a number above 0 and up to 1000</source>
        <translation>--speed richiede un numero maggiore di 0 e fino a 1000</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 richiede un valore</translation>
    </message>
    <message>
        <source>%1 needs --config FILE</source>
        <translation>%1 richiede --config FILE</translation>
    </message>
    <message>
        <source>%1 is a valid configuration</source>
        <translation>%1 è una configurazione valida</translation>
    </message>
    <message>
        <source>%1 takes no further words</source>
        <translation>%1 non accetta altre parole</translation>
    </message>
    <message>
        <source>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</source>
        <translation>solo Windows ha servizi da installare; altrove si usa l’unità di systemd, deploy/systemd/vxprintagent.service</translation>
    </message>
    <message>
        <source>what the Windows service manager starts</source>
        <translation>ciò che avvia la gestione dei servizi di Windows</translation>
    </message>
    <message>
        <source>%1: Windows allows it to administrators alone; use a console that was started as administrator</source>
        <translation>%1: Windows lo consente solo agli amministratori; usare una console avviata come amministratore</translation>
    </message>
    <message>
        <source>%1: %2 (error %3)</source>
        <translation>%1: %2 (errore %3)</translation>
    </message>
    <message>
        <source>the service %1 cannot be installed</source>
        <translation>impossibile installare il servizio %1</translation>
    </message>
    <message>
        <source>the service %1 cannot be removed</source>
        <translation>impossibile rimuovere il servizio %1</translation>
    </message>
    <message>
        <source>the rights to %1 are not known</source>
        <translation>i diritti su %1 non sono noti</translation>
    </message>
    <message>
        <source>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</source>
        <translation>%1 può essere modificato da %2, che otterrebbe così i diritti del servizio; spostarlo dove solo gli amministratori possono modificarlo, ad esempio in “C:\Program Files”</translation>
    </message>
    <message>
        <source>%1 is on a network drive, which a service does not see; copy it to this computer</source>
        <translation>%1 si trova su un’unità di rete, che un servizio non vede; copiarlo su questo computer</translation>
    </message>
    <message>
        <source>%1: it does not stop; end vxprintagent.exe in the task manager and try again</source>
        <translation>%1: non si arresta; terminare vxprintagent.exe in Gestione attività e riprovare</translation>
    </message>
    <message>
        <source>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</source>
        <translation>il comando “service” è per la gestione dei servizi; in una console usare “vxprintagent run --config FILE”</translation>
    </message>
    <message>
        <source>the service manager does not answer</source>
        <translation>la gestione dei servizi non risponde</translation>
    </message>
    <message>
        <source>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</source>
        <translation>%1: è già installato; eseguire prima “vxprintagent uninstall”</translation>
    </message>
    <message>
        <source>the service %1 is installed and starts with Windows; to start it now: net start %1</source>
        <translation>il servizio %1 è installato e si avvia con Windows; per avviarlo ora: net start %1</translation>
    </message>
    <message>
        <source>the service %1 is not installed</source>
        <translation>il servizio %1 non è installato</translation>
    </message>
    <message>
        <source>%1 yet: another program has it open; close the list of services and the event viewer</source>
        <translation>%1 per ora: un altro programma lo tiene aperto; chiudere l’elenco dei servizi e il Visualizzatore eventi</translation>
    </message>
    <message>
        <source>%1 does not let this user read what agents publish (%2); ask who runs the broker</source>
        <translation>%1 non consente a questo utente di leggere ciò che pubblicano gli agenti (%2); chiedere a chi gestisce il broker</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>più di %1 byte</translation>
    </message>
    <message>
        <source>a name that is empty or has more than %1 characters</source>
        <translation>un nome vuoto o con più di %1 caratteri</translation>
    </message>
    <message>
        <source>expected online or offline</source>
        <translation>previsto online o offline</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>non è un oggetto JSON</translation>
    </message>
    <message>
        <source>there are more than %1 printers</source>
        <translation>ci sono più di %1 stampanti</translation>
    </message>
    <message>
        <source>a message cannot be read: %1 (so far: %2)</source>
        <translation>un messaggio non può essere letto: %1 (finora: %2)</translation>
    </message>
    <message>
        <source>%1; those beyond are not shown</source>
        <translation>%1; quelle in più non sono mostrate</translation>
    </message>
    <message>
        <source>there are more than %1 agents</source>
        <translation>ci sono più di %1 agenti</translation>
    </message>
    <message>
        <source>--%1: expected %2</source>
        <translation>--%1: previsto %2</translation>
    </message>
    <message>
        <source>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</source>
        <translation>%1 non indica alcun broker: indicarlo con --broker o con &quot;url&quot; in &quot;mqtt&quot;</translation>
    </message>
    <message>
        <source>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</source>
        <translation>i certificati in %1 non hanno effetto senza TLS; previsto un URL che inizi con mqtts://</translation>
    </message>
    <message>
        <source>the password crosses the network readably; use mqtts://</source>
        <translation>la password attraversa la rete in chiaro; usare mqtts://</translation>
    </message>
    <message>
        <source>--broker: this build has no MQTT; build it with libmosquitto</source>
        <translation>--broker: questa versione è priva di MQTT; compilarla con libmosquitto</translation>
    </message>
    <message>
        <source>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>top: mostra ciò che gli agenti pubblicano sul broker all’URL, come mqtts://broker.example/SITE; senza SITE, tutte le sedi</translation>
    </message>
    <message>
        <source>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>top: prende il broker, l’utente e i certificati da FILE, che è come la configurazione di un agente</translation>
    </message>
    <message>
        <source>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</source>
        <translation>Con --broker o --broker-config, le stampanti sono quelle di un’intera sede, come le pubblicano i suoi agenti tramite MQTT. FILE indica in &quot;mqtt&quot; l’utente e il file con la password; un URL non contiene né l’uno né l’altra.</translation>
    </message>
    <message>
        <source>No agent since %1</source>
        <translation>Nessun agente da %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agente offline</translation>
    </message>
    <message>
        <source>--%1 does not go with --broker</source>
        <translation>--%1 non è compatibile con --broker</translation>
    </message>
    <message>
        <source>no connection since %1</source>
        <translation>nessuna connessione da %1</translation>
    </message>
    <message>
        <source>no connection</source>
        <translation>nessuna connessione</translation>
    </message>
    <message>
        <source>agents offline: %1</source>
        <translation>agenti offline: %1</translation>
    </message>
    <message>
        <source>unreadable messages: %1</source>
        <translation>messaggi illeggibili: %1</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connessione a %1…</translation>
    </message>
    <message>
        <source>No agent has published a printer yet.</source>
        <translation>Nessun agente ha ancora pubblicato una stampante.</translation>
    </message>
    <message>
        <source>No agent of the site &quot;%1&quot; has published a printer yet.</source>
        <translation>Nessun agente della sede &quot;%1&quot; ha ancora pubblicato una stampante.</translation>
    </message>
    <message>
        <source>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>mostra ciò che gli agenti pubblicano sul broker all’URL, come mqtts://broker.example/SITE; senza SITE, tutte le sedi</translation>
    </message>
    <message>
        <source>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>prende il broker, l’utente e i certificati da FILE, che è come la configurazione di un agente</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>tralasciati: %1</translation>
    </message>
</context>
</TS>
