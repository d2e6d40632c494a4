<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Option inconnue « %1 ».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Options inconnues : %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Il manque une valeur après « %1 ».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valeur inattendue après « %1 ».</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>%1 (see %2 --help)</source>
        <translation>%1 (voir %2 --help)</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>impossible d’écrire sur la sortie standard : %1</translation>
    </message>
    <message>
        <source>Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a failure, unless the reader has closed the pipe.</source>
        <translation>Code de sortie : 0 succès, 1 échec, 2 mauvaise utilisation. Ne pas pouvoir écrire la sortie est un échec, sauf si le lecteur a fermé le tube.</translation>
    </message>
    <message>
        <source>the character U+%1 is invisible; remove it</source>
        <translation>le caractère U+%1 est invisible ; supprimez-le</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>longer than %1 characters</source>
        <translation>plus long que %1 caractères</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number between %2 and %3</source>
        <translation>« %1 » n’est pas un nombre entier entre %2 et %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SKU: at most %2 letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or digit</source>
        <translation>« %1 » n’est pas un SKU : au plus %2 lettres de A à Z, chiffres, points, traits de soulignement et tirets, en commençant par une lettre ou un chiffre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a colour of the form #RRGGBB</source>
        <translation>« %1 » n’est pas une couleur de la forme #RRGGBB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither yes nor no</source>
        <translation>« %1 » n’est ni yes ni no</translation>
    </message>
    <message>
        <source>%1: no such file, or it cannot be read</source>
        <translation>%1 : ce fichier n’existe pas ou ne peut pas être lu</translation>
    </message>
    <message>
        <source>the column %1 is missing</source>
        <translation>la colonne %1 manque</translation>
    </message>
    <message>
        <source>the column en is missing</source>
        <translation>la colonne en manque</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language</source>
        <translation>ni une colonne de cette table ni une langue connue</translation>
    </message>
    <message>
        <source>not a column of this table</source>
        <translation>n’est pas une colonne de cette table</translation>
    </message>
    <message>
        <source>the same language as the column %1</source>
        <translation>la même langue que la colonne %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number between %2 and %3</source>
        <translation>« %1 » n’est pas un nombre entre %2 et %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not greater than 0</source>
        <translation>« %1 » n’est pas supérieur à 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in colours.csv</source>
        <translation>« %1 » n’est pas dans colours.csv</translation>
    </message>
    <message>
        <source>a space in a colour&apos;s key</source>
        <translation>une espace dans la clé d’une couleur</translation>
    </message>
    <message>
        <source>duplicate colour &quot;%1&quot;</source>
        <translation>couleur « %1 » en double</translation>
    </message>
    <message>
        <source>duplicate material %1</source>
        <translation>matériau %1 en double</translation>
    </message>
    <message>
        <source>duplicate format %1</source>
        <translation>format %1 en double</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of %2</source>
        <translation>« %1 » n’est pas l’une des valeurs %2</translation>
    </message>
    <message>
        <source>format %1 is not in formats.csv</source>
        <translation>le format %1 n’est pas dans formats.csv</translation>
    </message>
    <message>
        <source>duplicate number %1</source>
        <translation>numéro %1 en double</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a plain file name</source>
        <translation>« %1 » n’est pas un simple nom de fichier</translation>
    </message>
    <message>
        <source>%1%2 cannot be read</source>
        <translation>%1%2 ne peut pas être lu</translation>
    </message>
    <message>
        <source>%1%2 is larger than %3 KiB</source>
        <translation>%1%2 dépasse %3 Kio</translation>
    </message>
    <message>
        <source>%1%2 is not a readable image</source>
        <translation>%1%2 n’est pas une image lisible</translation>
    </message>
    <message>
        <source>%1%2 has %3 by %4 pixels; the maximum is %5 by %5</source>
        <translation>%1%2 a %3 sur %4 pixels ; le maximum est de %5 sur %5</translation>
    </message>
    <message>
        <source>more than %1 rows</source>
        <translation>plus de %1 lignes</translation>
    </message>
    <message>
        <source>duplicate SKU %1</source>
        <translation>SKU %1 en double</translation>
    </message>
    <message>
        <source>material %1 is not in materials.csv</source>
        <translation>le matériau %1 n’est pas dans materials.csv</translation>
    </message>
    <message>
        <source>a second colour and its width must be given together or not at all</source>
        <translation>une seconde couleur et sa largeur doivent être indiquées ensemble ou pas du tout</translation>
    </message>
    <message>
        <source>a label length is given, but the format is continuous</source>
        <translation>une longueur d’étiquette est indiquée, mais le format est continu</translation>
    </message>
    <message>
        <source>empty, but the format is not continuous</source>
        <translation>vide, mais le format n’est pas continu</translation>
    </message>
    <message>
        <source>a gap is given, but there is only one label across</source>
        <translation>un écart est indiqué, mais il n’y a qu’une étiquette en largeur</translation>
    </message>
    <message>
        <source>empty, but there are several labels across</source>
        <translation>vide, mais il y a plusieurs étiquettes en largeur</translation>
    </message>
    <message>
        <source>%1 is a supply&apos;s SKU</source>
        <translation>%1 est le SKU d’un consommable</translation>
    </message>
    <message>
        <source>%1 panels; a ribbon has 1 to %2</source>
        <translation>%1 panneaux ; un ruban en a de 1 à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in ribbons.csv</source>
        <translation>« %1 » n’est pas dans ribbons.csv</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in supplies.csv</source>
        <translation>« %1 » n’est pas dans supplies.csv</translation>
    </message>
    <message>
        <source>duplicate print setting for panel %1 of %2 with %3</source>
        <translation>paramètre d’impression en double pour le panneau %1 de %2 avec %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the same model as &quot;%2&quot;</source>
        <translation>« %1 » est le même modèle que « %2 »</translation>
    </message>
    <message>
        <source>duplicate format %1 for %2</source>
        <translation>format %1 en double pour %2</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1 : ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1: cannot be created in %2: %3</source>
        <translation>%1 : impossible à créer dans %2 : %3</translation>
    </message>
    <message>
        <source>%1: larger than 16 MiB</source>
        <translation>%1 : dépasse 16 Mio</translation>
    </message>
    <message>
        <source>not UTF-8 text</source>
        <translation>n’est pas du texte UTF-8</translation>
    </message>
    <message>
        <source>%1:%2, column %3 (%4)</source>
        <translation>%1:%2, colonne %3 (%4)</translation>
    </message>
    <message>
        <source>more than %1 columns</source>
        <translation>plus de %1 colonnes</translation>
    </message>
    <message>
        <source>a carriage return without a line feed</source>
        <translation>un retour chariot sans saut de ligne</translation>
    </message>
    <message>
        <source>text after a closing quotation mark</source>
        <translation>du texte après un guillemet fermant</translation>
    </message>
    <message>
        <source>a field of more than %1 characters</source>
        <translation>un champ de plus de %1 caractères</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>un caractère NUL</translation>
    </message>
    <message>
        <source>a quotation mark inside a field that is not quoted</source>
        <translation>un guillemet dans un champ sans guillemets</translation>
    </message>
    <message>
        <source>an unclosed quotation mark</source>
        <translation>un guillemet non fermé</translation>
    </message>
    <message>
        <source>empty; expected a line of column names</source>
        <translation>vide ; une ligne de noms de colonnes est attendue</translation>
    </message>
    <message>
        <source>a column without a name</source>
        <translation>une colonne sans nom</translation>
    </message>
    <message>
        <source>duplicate column</source>
        <translation>colonne en double</translation>
    </message>
    <message>
        <source>%1 fields, but there are %2 columns</source>
        <translation>%1 champs, mais il y a %2 colonnes</translation>
    </message>
    <message>
        <source>%1:1, column %2 (%3): %4</source>
        <translation>%1:1, colonne %2 (%3) : %4</translation>
    </message>
    <message>
        <source>the panels of ribbon %1 are not numbered consecutively from 1</source>
        <translation>les panneaux du ruban %1 ne sont pas numérotés consécutivement à partir de 1</translation>
    </message>
    <message>
        <source>%1 is both a supply and a ribbon</source>
        <translation>%1 est à la fois un consommable et un ruban</translation>
    </message>
    <message>
        <source>supply %1 has a label length and a continuous format, or neither</source>
        <translation>le consommable %1 a une longueur d’étiquette et un format continu, ou ni l’un ni l’autre</translation>
    </message>
    <message>
        <source>the formats of the printer model &quot;%1&quot; are not numbered consecutively from 0</source>
        <translation>les formats du modèle d’imprimante « %1 » ne sont pas numérotés consécutivement à partir de 0</translation>
    </message>
    <message>
        <source>the language 0 is &quot;%1&quot;, not English</source>
        <translation>la langue 0 est « %1 », pas l’anglais</translation>
    </message>
    <message>
        <source>English is missing%1</source>
        <translation>l’anglais manque%1</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row</source>
        <translation>une ligne de %1 renvoie à une ligne absente</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>endommagé : %1</translation>
    </message>
    <message>
        <source>its tables are not those of schema version %1</source>
        <translation>ses tables ne sont pas celles de la version %1 du schéma</translation>
    </message>
    <message>
        <source>%1: not a file, so it is not replaced</source>
        <translation>%1 : ce n’est pas un fichier, il n’est donc pas remplacé</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Utilisation : %1</translation>
    </message>
    <message>
        <source>build creates the supply database FILE from the tables in DIRECTORY.</source>
        <translation>build crée la base de données des consommables FILE à partir des tables de DIRECTORY.</translation>
    </message>
    <message>
        <source>check verifies FILE.</source>
        <translation>check vérifie FILE.</translation>
    </message>
    <message>
        <source>show prints what FILE has about a supply or a ribbon, with names in English or in the language TAG (&quot;de&quot;, &quot;ja&quot;).</source>
        <translation>show affiche ce que FILE contient sur un consommable ou un ruban, avec les noms en anglais ou dans la langue TAG (« de », « ja »).</translation>
    </message>
    <message>
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 consommables, %2 rubans, %3 paramètres d’impression, %4 langues</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1 : correct, %2</translation>
    </message>
    <message>
        <source>expected build, check or show</source>
        <translation>build, check ou show est attendu</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected build, check or show</source>
        <translation>commande inconnue « %1 » ; build, check ou show est attendu</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3</source>
        <translation>%1 attend %2 arguments, pas %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a known language</source>
        <translation>« %1 » n’est pas une langue connue</translation>
    </message>
    <message>
        <source>supply</source>
        <translation>consommable</translation>
    </message>
    <message>
        <source>material</source>
        <translation>matériau</translation>
    </message>
    <message>
        <source>format</source>
        <translation>format</translation>
    </message>
    <message>
        <source>type</source>
        <translation>type</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>couleur</translation>
    </message>
    <message>
        <source>second colour</source>
        <translation>seconde couleur</translation>
    </message>
    <message>
        <source>stripe</source>
        <translation>bande</translation>
    </message>
    <message>
        <source>width</source>
        <translation>largeur</translation>
    </message>
    <message>
        <source>length</source>
        <translation>longueur</translation>
    </message>
    <message>
        <source>label length</source>
        <translation>longueur d’étiquette</translation>
    </message>
    <message>
        <source>separator</source>
        <translation>séparateur</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>paysage</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>side by side</source>
        <translation>côte à côte</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>écart</translation>
    </message>
    <message>
        <source>background</source>
        <translation>arrière-plan</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>printed with</source>
        <translation>imprimé avec</translation>
    </message>
    <message>
        <source>%1 panel %2: heat %3, offset %4, speed %5, tension %6</source>
        <translation>%1 panneau %2 : chaleur %3, décalage %4, vitesse %5, tension %6</translation>
    </message>
    <message>
        <source>ribbon</source>
        <translation>ruban</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>panneau</translation>
    </message>
    <message>
        <source>%1: no supply or ribbon &quot;%2&quot;</source>
        <translation>%1 : aucun consommable ni ruban « %2 »</translation>
    </message>
    <message>
        <source>there is no method %1</source>
        <translation>il n’y a pas de méthode %1</translation>
    </message>
    <message>
        <source>the arguments do not fit %1</source>
        <translation>les arguments ne conviennent pas à %1</translation>
    </message>
    <message>
        <source> or </source>
        <translation> ou </translation>
    </message>
    <message>
        <source>unknown service &quot;%1&quot;; expected supplyd, m4, printqd, status, a number or a name printed by list</source>
        <translation>service inconnu « %1 » ; supplyd, m4, printqd, status, un numéro ou un nom affiché par list est attendu</translation>
    </message>
    <message>
        <source>no arguments</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>a SERVICE</source>
        <translation>un SERVICE</translation>
    </message>
    <message>
        <source>a SERVICE, a METHOD and its arguments</source>
        <translation>un SERVICE, une METHOD et ses arguments</translation>
    </message>
    <message>
        <source>expected list, describe, call or watch</source>
        <translation>list, describe, call ou watch est attendu</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; %2</source>
        <translation>commande inconnue « %1 » ; %2</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1 : arguments attendus : %2</translation>
    </message>
    <message>
        <source>Calls the endpoints that run for this user.</source>
        <translation>Appelle les points d’accès ouverts pour cet utilisateur.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes :</translation>
    </message>
    <message>
        <source>list the endpoints: name, service, process, application</source>
        <translation>énumérer les points d’accès : nom, service, processus, application</translation>
    </message>
    <message>
        <source>list the methods and signals of an endpoint</source>
        <translation>lister les méthodes et les signaux d’un point d’accès</translation>
    </message>
    <message>
        <source>call a method and print its result</source>
        <translation>appeler une méthode et afficher son résultat</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list. Arguments for text parameters are taken as they are, all others are read as JSON.</source>
        <translation>SERVICE est supplyd, m4, printqd, status, un numéro ou un nom affiché par list. Les arguments des paramètres de texte sont pris tels quels, tous les autres sont lus comme du JSON.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>print JSON</source>
        <translation>afficher du JSON</translation>
    </message>
    <message>
        <source>wait up to MS milliseconds for an endpoint (10000)</source>
        <translation>attendre un point d’accès jusqu’à MS millisecondes (10000)</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>afficher cette aide</translation>
    </message>
    <message>
        <source>what follows is not an option</source>
        <translation>ce qui suit n’est pas une option</translation>
    </message>
    <message>
        <source>print a line of JSON for each emission of the signals, or of all signals, until interrupted</source>
        <translation>afficher une ligne JSON pour chaque émission des signaux, ou de tous les signaux, jusqu’à l’interruption</translation>
    </message>
    <message>
        <source>watch for SECONDS only</source>
        <translation>observer pendant SECONDS secondes seulement</translation>
    </message>
    <message>
        <source>--for takes a number of seconds</source>
        <translation>--for attend un nombre de secondes</translation>
    </message>
    <message>
        <source>%1 takes no --for</source>
        <translation>%1 n’accepte pas --for</translation>
    </message>
    <message>
        <source>a SERVICE and SIGNALs</source>
        <translation>un SERVICE et des noms SIGNAL</translation>
    </message>
    <message>
        <source>%1: it has no signals</source>
        <translation>%1 : il n’a pas de signaux</translation>
    </message>
    <message>
        <source>%1: the connection ended; waiting for the endpoint</source>
        <translation>%1 : la connexion est terminée ; attente du point d’accès</translation>
    </message>
    <message>
        <source>%1: watching again; what changed meanwhile was missed</source>
        <translation>%1 : l’observation reprend ; les changements survenus entre-temps manquent</translation>
    </message>
    <message>
        <source>--timeout takes a number of milliseconds</source>
        <translation>--timeout attend un nombre de millisecondes</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>option inconnue %1</translation>
    </message>
    <message>
        <source>--virtual: this build uses the system&apos;s own print spooler</source>
        <translation>--virtual : cette version utilise le spouleur d’impression du système</translation>
    </message>
    <message>
        <source>print JSON: an array, or one object per line</source>
        <translation>afficher du JSON : un tableau ou un objet par ligne</translation>
    </message>
    <message>
        <source>watch: stop after SECONDS; by default, when interrupted</source>
        <translation>watch : terminer après SECONDS ; sinon, à l’interruption</translation>
    </message>
    <message>
        <source>append the library&apos;s log to FILE</source>
        <translation>ajouter le journal de la bibliothèque à FILE</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>utiliser les imprimantes virtuelles décrites par FILE</translation>
    </message>
    <message>
        <source>watch: speed up the virtual printers&apos; story by FACTOR</source>
        <translation>watch : accélérer FACTOR fois le scénario des imprimantes virtuelles</translation>
    </message>
    <message>
        <source>title: all codes, with what they mean and what to do</source>
        <translation>title : tous les codes, leur sens et que faire</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>afficher la version</translation>
    </message>
    <message>
        <source>Lists and watches the label printers of the print spooler.</source>
        <translation>Énumère et surveille les imprimantes d’étiquettes du spouleur d’impression.</translation>
    </message>
    <message>
        <source>status waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>status attend que chaque imprimante affichée se soit signalée et que 0,1 seconde se soit écoulée sans autre signalement, mais pas plus de 2 secondes. Il consacre ensuite jusqu’à une demi-seconde de plus aux signalements arrivés d’ici là.</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program. Only the Windows build sees the printers of the system; any other build has virtual printers only, by default a fleet of six.</source>
        <translation>Les noms des couleurs et des matériaux viennent du fichier roll.db à côté de ce programme. Seule la version pour Windows voit les imprimantes du système ; toute autre n’a que des imprimantes virtuelles, six par défaut.</translation>
    </message>
    <message>
        <source>Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Les couleurs sont omises si la sortie n’est pas un terminal ou si NO_COLOR est définie. Les caractères qui pourraient commander le terminal sont affichés sous la forme \u001b, etc.</translation>
    </message>
    <message>
        <source>--%1: expected a file name</source>
        <translation>--%1 : un nom de fichier est attendu</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to 1000000, found &quot;%2&quot;</source>
        <translation>--%1 : un nombre supérieur à 0 et jusqu’à 1000000 est attendu, trouvé : « %2 »</translation>
    </message>
    <message>
        <source>unknown command &quot;%1&quot;; expected one of %2</source>
        <translation>commande inconnue « %1 » ; l’une de ces commandes est attendue : %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>%1 takes %2, found %3</source>
        <translation>%1 : arguments attendus : %2 ; trouvés : %3</translation>
    </message>
    <message>
        <source>expected a command: %1</source>
        <translation>une commande est attendue : %1</translation>
    </message>
    <message>
        <source>--%1 is valid only with %2</source>
        <translation>--%1 n’est valable qu’avec %2</translation>
    </message>
    <message>
        <source>list the printers of the print spooler</source>
        <translation>énumérer les imprimantes du spouleur d’impression</translation>
    </message>
    <message>
        <source>print a line for each change to the label printers</source>
        <translation>afficher une ligne pour chaque changement des imprimantes d’étiquettes</translation>
    </message>
    <message>
        <source>show the status of all label printers, or of one</source>
        <translation>afficher l’état de toutes les imprimantes d’étiquettes ou d’une seule</translation>
    </message>
    <message>
        <source>at most one printer</source>
        <translation>une imprimante au plus</translation>
    </message>
    <message>
        <source>send a command in the printer&apos;s own language</source>
        <translation>envoyer une commande dans le langage de l’imprimante</translation>
    </message>
    <message>
        <source>a printer and a command</source>
        <translation>une imprimante et une commande</translation>
    </message>
    <message>
        <source>print the title of a status code</source>
        <translation>afficher le titre d’un code d’état</translation>
    </message>
    <message>
        <source>a status code or --all</source>
        <translation>un code d’état ou --all</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2</source>
        <translation>impossible d’écrire le journal %1 : %2</translation>
    </message>
    <message>
        <source>other</source>
        <translation>autre</translation>
    </message>
    <message>
        <source>default</source>
        <translation>par défaut</translation>
    </message>
    <message>
        <source>network</source>
        <translation>réseau</translation>
    </message>
    <message>
        <source>shared</source>
        <translation>partagée</translation>
    </message>
    <message>
        <source>not managed</source>
        <translation>non gérée</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors connexion</translation>
    </message>
    <message>
        <source>There are no printers, or the print spooler is not running.</source>
        <translation>Il n’y a pas d’imprimante, ou le spouleur d’impression n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>PRINTER</source>
        <translation>IMPRIMANTE</translation>
    </message>
    <message>
        <source>MODEL</source>
        <translation>MODÈLE</translation>
    </message>
    <message>
        <source>PORT</source>
        <translation>PORT</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>N° DE SÉRIE</translation>
    </message>
    <message>
        <source>DRIVER</source>
        <translation>PILOTE</translation>
    </message>
    <message>
        <source>FLAGS</source>
        <translation>INDICATEURS</translation>
    </message>
    <message>
        <source>none</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>of an unknown kind</source>
        <translation>de type inconnu</translation>
    </message>
    <message>
        <source>status</source>
        <translation>état</translation>
    </message>
    <message>
        <source>online</source>
        <translation>en ligne</translation>
    </message>
    <message>
        <source>supply left</source>
        <translation>reste du consommable</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>ruban 1</translation>
    </message>
    <message>
        <source>ribbon 1 left</source>
        <translation>reste du ruban 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>ruban 2</translation>
    </message>
    <message>
        <source>ribbon 2 left</source>
        <translation>reste du ruban 2</translation>
    </message>
    <message>
        <source>has a ribbon 2</source>
        <translation>a un ruban 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>micrologiciel</translation>
    </message>
    <message>
        <source>network printer</source>
        <translation>imprimante réseau</translation>
    </message>
    <message>
        <source>managed</source>
        <translation>gérée</translation>
    </message>
    <message>
        <source>has been active</source>
        <translation>a été active</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non connu</translation>
    </message>
    <message>
        <source>There are no label printers yet.</source>
        <translation>Il n’y a pas encore d’imprimante d’étiquettes.</translation>
    </message>
    <message>
        <source>STATUS</source>
        <translation>ÉTAT</translation>
    </message>
    <message>
        <source>SUPPLY</source>
        <translation>CONSOMMABLE</translation>
    </message>
    <message>
        <source>RIBBON 1</source>
        <translation>RUBAN 1</translation>
    </message>
    <message>
        <source>RIBBON 2</source>
        <translation>RUBAN 2</translation>
    </message>
    <message>
        <source>FIRMWARE</source>
        <translation>MICROLOGICIEL</translation>
    </message>
    <message>
        <source>ACTIVE</source>
        <translation>ACTIVE</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>imprimante</translation>
    </message>
    <message>
        <source>active</source>
        <translation>active</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>erreurs</translation>
    </message>
    <message>
        <source>ribbons</source>
        <translation>rubans</translation>
    </message>
    <message>
        <source>found</source>
        <translation>trouvée</translation>
    </message>
    <message>
        <source>records</source>
        <translation>données</translation>
    </message>
    <message>
        <source>a printer is in error</source>
        <translation>une imprimante est en erreur</translation>
    </message>
    <message>
        <source>no printer is in error</source>
        <translation>aucune imprimante n’est en erreur</translation>
    </message>
    <message>
        <source>changed or removed</source>
        <translation>changé ou retiré</translation>
    </message>
    <message>
        <source>is the active printer</source>
        <translation>est l’imprimante active</translation>
    </message>
    <message>
        <source>is the active printer but has no record</source>
        <translation>est l’imprimante active, mais n’a pas d’enregistrement</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>is now watched</source>
        <translation>est maintenant surveillée</translation>
    </message>
    <message>
        <source>no changes</source>
        <translation>aucun changement</translation>
    </message>
    <message>
        <source>Print job %1, &quot;%2&quot;: %3, pages: %4, bytes: %5.</source>
        <translation>Travail d’impression %1, « %2 » : %3, pages : %4, octets : %5.</translation>
    </message>
    <message>
        <source>Sent to %1: %2</source>
        <translation>Envoyé à %1 : %2</translation>
    </message>
    <message>
        <source>there is no record of a printer &quot;%1&quot;; &quot;vxprintmon status&quot; shows the printers that have one</source>
        <translation>il n’y a pas d’enregistrement d’une imprimante « %1 » ; « vxprintmon status » affiche les imprimantes qui en ont un</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>title takes a status code between -2147483648 and 2147483647, found &quot;%1&quot;</source>
        <translation>title attend un code d’état entre -2147483648 et 2147483647, trouvé : « %1 »</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Que faire : %1</translation>
    </message>
    <message>
        <source>title takes a status code or --all, not both</source>
        <translation>title attend un code d’état ou --all, pas les deux</translation>
    </message>
    <message>
        <source>title takes a status code or --all, found nothing</source>
        <translation>title attend un code d’état ou --all, rien trouvé</translation>
    </message>
    <message>
        <source>send: wait until the job was printed or has left the queue</source>
        <translation>send : attendre que le travail soit imprimé ou ait quitté la file d’attente</translation>
    </message>
    <message>
        <source>send: also to a printer of another maker, also nothing</source>
        <translation>send : aussi à une imprimante d’un autre fabricant, aussi une commande vide</translation>
    </message>
    <message>
        <source>Print job %1, bytes: %2.</source>
        <translation>Travail d’impression %1, octets : %2.</translation>
    </message>
    <message>
        <source>interrupted while print job %1 was in the queue of &quot;%2&quot;</source>
        <translation>interrompu alors que le travail d’impression %1 était dans la file d’attente de « %2 »</translation>
    </message>
    <message>
        <source>--force sends it nevertheless.</source>
        <translation>--force l’envoie quand même.</translation>
    </message>
    <message>
        <source>the command was not sent: %1</source>
        <translation>la commande n’a pas été envoyée : %1</translation>
    </message>
    <message>
        <source>print job %1 was not printed: %2</source>
        <translation>le travail d’impression %1 n’a pas été imprimé : %2</translation>
    </message>
</context>
</TS>
