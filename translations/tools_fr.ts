<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DoctorDialog</name>
    <message>
        <source>Doctor</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>Doctor: %1</source>
        <translation>Diagnostic : %1</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Ce qui a été trouvé</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Aucun problème.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>Problèmes trouvés : %1</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
</context>
<context>
    <name>EventModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Ce qui s’est passé</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Label printers</source>
        <translation>Imprimantes d’étiquettes</translation>
    </message>
    <message>
        <source>&amp;Printers</source>
        <translation>&amp;Imprimantes</translation>
    </message>
    <message>
        <source>&amp;Look for printers</source>
        <translation>&amp;Rechercher des imprimantes</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Enregistrer un cas pour l’assistance…</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnostic…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Événements</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>&amp;Notices</source>
        <translation>&amp;Notifications</translation>
    </message>
    <message>
        <source>&amp;None for an hour</source>
        <translation>&amp;Aucune pendant une heure</translation>
    </message>
    <message>
        <source>None of the chosen &amp;printer</source>
        <translation>Aucune de l’im&amp;primante choisie</translation>
    </message>
    <message>
        <source>&amp;All printers and kinds again</source>
        <translation>De nouveau de &amp;toutes les imprimantes et de tous les types</translation>
    </message>
    <message>
        <source>&amp;Warn of few labels…</source>
        <translation>Avertir s’il reste &amp;peu d’étiquettes…</translation>
    </message>
    <message>
        <source>&amp;Stay in the tray when the window is closed</source>
        <translation>&amp;Rester dans la zone de notification quand la fenêtre est fermée</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>À &amp;propos…</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Events, the newest first</source>
        <translation>Événements, le plus récent en premier</translation>
    </message>
    <message>
        <source>Details of the chosen printer</source>
        <translation>Détails de l’imprimante choisie</translation>
    </message>
    <message>
        <source>How many printers there are of each state</source>
        <translation>Combien d’imprimantes sont dans chaque état</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2</source>
        <translation>%1 n’a pas pu être enregistré : %2</translation>
    </message>
    <message>
        <source>Printers: %1 with an error, %2 with a warning, %3 others</source>
        <translation>Imprimantes : %1 en erreur, %2 avec un avertissement, %3 autres</translation>
    </message>
    <message>
        <source>The queue of %1 could not be opened.</source>
        <translation>La file d’attente de %1 n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>Print a test label</source>
        <translation>Imprimer une étiquette de test</translation>
    </message>
    <message>
        <source>The command is sent to %1 as it is:</source>
        <translation>La commande est envoyée telle quelle à %1 :</translation>
    </message>
    <message>
        <source>The command is in the queue of %1.</source>
        <translation>La commande est dans la file d’attente de %1.</translation>
    </message>
    <message>
        <source>Save a case for support</source>
        <translation>Enregistrer un cas pour l’assistance</translation>
    </message>
    <message>
        <source>Cases (*.vxcase)</source>
        <translation>Cas (*.vxcase)</translation>
    </message>
    <message>
        <source>Warn of few labels</source>
        <translation>Avertir s’il reste peu d’étiquettes</translation>
    </message>
    <message>
        <source>Warn when fewer labels are left than (0: never):</source>
        <translation>Avertir quand il reste moins d’étiquettes que (0 : jamais) :</translation>
    </message>
    <message>
        <source>Show the &amp;printer</source>
        <translation>Afficher l’im&amp;primante</translation>
    </message>
    <message>
        <source>No notices of this p&amp;rinter</source>
        <translation>Pas de notification de cette imp&amp;rimante</translation>
    </message>
    <message>
        <source>No notices of this &amp;kind</source>
        <translation>Pas de notification de ce &amp;type</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer.</source>
        <translation>Affiche les imprimantes d’étiquettes de cet ordinateur.</translation>
    </message>
    <message>
        <source>Version %1, with Qt %2 (used: %3)</source>
        <translation>Version %1, avec Qt %2 (utilisé : %3)</translation>
    </message>
    <message>
        <source>Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU Lesser General Public License, version 3; SQLite is in the public domain. The full texts come with the program.</source>
        <translation>Copyright les auteurs de VxPrinterStatus, sous licence MIT. Qt est utilisé sous la GNU Lesser General Public License, version 3 ; SQLite est dans le domaine public. Les textes complets accompagnent le programme.</translation>
    </message>
    <message>
        <source>Label printers: %1</source>
        <translation>Imprimantes d’étiquettes : %1</translation>
    </message>
    <message>
        <source>Only for the printers of this computer. These are those of a site, as its agents publish them.</source>
        <translation>Seulement pour les imprimantes de cet ordinateur. Celles-ci sont celles d’un site, telles que ses agents les publient.</translation>
    </message>
    <message>
        <source>Shows the label printers of a site, as its agents publish them.</source>
        <translation>Affiche les imprimantes d’étiquettes d’un site, telles que ses agents les publient.</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>Looking for printers…</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>The print spooler is asked for its printers. This takes longer when printers in the network do not answer.</source>
        <translation>Le spouleur d’impression est interrogé sur ses imprimantes. Cela dure plus longtemps quand des imprimantes du réseau ne répondent pas.</translation>
    </message>
    <message>
        <source>No label printer is installed</source>
        <translation>Aucune imprimante d’étiquettes n’est installée</translation>
    </message>
    <message>
        <source>Connect a printer by USB, switch it on, and install its driver. It appears here by itself. Printers of other makers are not shown.</source>
        <translation>Branchez une imprimante en USB, allumez-la et installez son pilote. Elle apparaît ici d’elle-même. Les imprimantes d’autres fabricants ne sont pas affichées.</translation>
    </message>
    <message>
        <source>&amp;Look again</source>
        <translation>&amp;Rechercher à nouveau</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>Le spouleur d’impression n’est pas en marche</translation>
    </message>
    <message>
        <source>Without it, nothing can be printed and nothing is known of any printer. Start the service &quot;Print Spooler&quot; (services.msc), or start the computer again. The printers come back by themselves.</source>
        <translation>Sans lui, rien ne peut être imprimé et rien n’est connu des imprimantes. Démarrez le service « Spouleur d’impression » (services.msc) ou redémarrez l’ordinateur. Les imprimantes reviennent d’elles-mêmes.</translation>
    </message>
    <message>
        <source>&amp;Show the last known state</source>
        <translation>&amp;Afficher le dernier état connu</translation>
    </message>
    <message>
        <source>You may not manage these printers</source>
        <translation>Vous n’avez pas le droit de gérer ces imprimantes</translation>
    </message>
    <message>
        <source>Windows tells their state only to people who may manage them. Ask an administrator for the permission &quot;Manage this printer&quot; (printer properties, Security).</source>
        <translation>Windows n’indique leur état qu’aux personnes autorisées à les gérer. Demandez à un administrateur l’autorisation « Gestion d’imprimantes » (propriétés de l’imprimante, Sécurité).</translation>
    </message>
    <message>
        <source>&amp;Show the printers all the same</source>
        <translation>&amp;Afficher quand même les imprimantes</translation>
    </message>
    <message>
        <source>Connecting to the broker…</source>
        <translation>Connexion au courtier…</translation>
    </message>
    <message>
        <source>Nothing can be read from the broker</source>
        <translation>Rien ne peut être lu sur le courtier</translation>
    </message>
    <message>
        <source>The connection is tried again, and the printers appear by themselves.</source>
        <translation>La connexion est tentée de nouveau, et les imprimantes apparaissent d’elles-mêmes.</translation>
    </message>
    <message>
        <source>No agent has published a printer</source>
        <translation>Aucun agent n’a publié d’imprimante</translation>
    </message>
    <message>
        <source>On each computer with printers, an agent (vxprintagent) publishes them to this broker. Check that one is running, and that its configuration names this broker and this site. Printers appear here by themselves.</source>
        <translation>Sur chaque ordinateur avec des imprimantes, un agent (vxprintagent) les publie auprès de ce courtier. Vérifiez qu’un agent fonctionne et que sa configuration indique ce courtier et ce site. Les imprimantes apparaissent ici d’elles-mêmes.</translation>
    </message>
</context>
<context>
    <name>OverviewBar</name>
    <message>
        <source>%1 error</source>
        <translation>%1 erreur</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 erreurs</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 avertissement</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 avertissements</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 information</translation>
    </message>
    <message>
        <source>%1 notices</source>
        <translation>%1 informations</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 prêtes</translation>
    </message>
    <message>
        <source>Show only these printers; press again to show all</source>
        <translation>N’afficher que ces imprimantes ; appuyer à nouveau pour les afficher toutes</translation>
    </message>
</context>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SiteBar</name>
    <message>
        <source>No connection to the broker since %1. Everything is shown as it was then. The connection is tried again.</source>
        <translation>Aucune connexion au courtier depuis %1. Tout est affiché tel que c’était alors. La connexion est tentée de nouveau.</translation>
    </message>
    <message>
        <source>Agents offline: %1 and %2 more</source>
        <translation>Agents hors connexion : %1 et %2 autres</translation>
    </message>
    <message>
        <source>Agents offline: %1</source>
        <translation>Agents hors connexion : %1</translation>
    </message>
    <message>
        <source>Messages that cannot be read: %1. The last one: %2</source>
        <translation>Messages illisibles : %1. Le dernier : %2</translation>
    </message>
    <message>
        <source>There are more printers or agents than this program shows. Messages left out: %1</source>
        <translation>Il y a plus d’imprimantes ou d’agents que ce programme n’en affiche. Messages ignorés : %1</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;No notices for an hour</source>
        <translation>Pas de &amp;notification pendant une heure</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>print a log of what happened to printers</source>
        <translation>afficher un journal de ce qui est arrivé aux imprimantes</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>un fichier</translation>
    </message>
    <message>
        <source>log: only events of the printer NAME and of the spooler</source>
        <translation>log : seulement les événements de l’imprimante NAME et du spouleur</translation>
    </message>
    <message>
        <source>log: only events since TIME: 2026-11-22, 2026-11-22T10:30, 10:30 (today), or 30m, 2h or 7d ago</source>
        <translation>log : seulement les événements depuis TIME : 2026-11-22, 2026-11-22T10:30, 10:30 (aujourd’hui), ou il y a 30m, 2h ou 7d</translation>
    </message>
    <message>
        <source>log: only events that are ok, information, warning or error, or worse</source>
        <translation>log : seulement les événements qui sont ok, information, warning ou error, ou pires</translation>
    </message>
    <message>
        <source>--since: expected such as 2026-11-22, 2026-11-22T10:30, 10:30 or 2h, found &quot;%1&quot;</source>
        <translation>--since : une valeur telle que 2026-11-22, 2026-11-22T10:30, 10:30 ou 2h est attendue, et non « %1 »</translation>
    </message>
    <message>
        <source>--severity: expected ok, information, warning or error, found &quot;%1&quot;</source>
        <translation>--severity : ok, information, warning ou error est attendu, et non « %1 »</translation>
    </message>
    <message>
        <source>lines that are no events and were left out: %1</source>
        <translation>lignes omises car elles ne sont pas des événements : %1</translation>
    </message>
    <message>
        <source>There are no such events.</source>
        <translation>Il n’y a aucun événement de ce genre.</translation>
    </message>
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
        <source>%1 supplies, %2 ribbons, %3 print settings, %4 languages</source>
        <translation>%1 consommables, %2 rubans, %3 paramètres d’impression, %4 langues</translation>
    </message>
    <message>
        <source>%1: ok, %2</source>
        <translation>%1 : correct, %2</translation>
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
        <source>status</source>
        <translation>état</translation>
    </message>
    <message>
        <source>online</source>
        <translation>en ligne</translation>
    </message>
    <message>
        <source>ribbon 1</source>
        <translation>ruban 1</translation>
    </message>
    <message>
        <source>ribbon 2</source>
        <translation>ruban 2</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>micrologiciel</translation>
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
        <source>printer</source>
        <translation>imprimante</translation>
    </message>
    <message>
        <source>active</source>
        <translation>active</translation>
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
    <message>
        <source>supplies and ribbons have no names: nothing can be read from the catalogue %1; &quot;rolldb check&quot; says what is wrong with it</source>
        <translation>les consommables et les rubans n’ont pas de nom : rien n’est lisible dans le catalogue %1 ; « rolldb check » dit ce qui ne va pas</translation>
    </message>
    <message>
        <source>supplies and ribbons have no names: there is no catalogue %1; put it there, or name another one with --catalogue or VX_ROLL_DB</source>
        <translation>les consommables et les rubans n’ont pas de nom : le catalogue %1 n’existe pas ; placez-le là ou indiquez-en un autre avec --catalogue ou VX_ROLL_DB</translation>
    </message>
    <message>
        <source>watch: append what happens to FILE as well</source>
        <translation>watch : ajouter aussi à FILE ce qui se passe</translation>
    </message>
    <message>
        <source>watch: print seconds since the start, not the time of day</source>
        <translation>watch : afficher les secondes depuis le début au lieu de l’heure</translation>
    </message>
    <message>
        <source>watch: print every change of a level</source>
        <translation>watch : afficher chaque changement d’un niveau</translation>
    </message>
    <message>
        <source>watch --json: print the signals that a host receives</source>
        <translation>watch --json : afficher les signaux que reçoit un programme hôte</translation>
    </message>
    <message>
        <source>take the names of supplies and ribbons from FILE</source>
        <translation>prendre dans FILE les noms des consommables et des rubans</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>utiliser les imprimantes virtuelles décrites par FILE, ou celles intégrées (« built-in »)</translation>
    </message>
    <message>
        <source>print this help as JSON</source>
        <translation>afficher cette aide en JSON</translation>
    </message>
    <message>
        <source>print this help, or that of a command</source>
        <translation>afficher cette aide ou celle d’une commande</translation>
    </message>
    <message>
        <source>The names of colours and materials come from the file roll.db beside this program, or from the catalogue that was installed with it, unless --catalogue or the environment variable VX_ROLL_DB names another file. Only the Windows build sees the printers of the system; any other build has virtual printers only: those of --virtual, those that VX_VIRTUAL_FLEET names, or a built-in fleet of six.</source>
        <translation>Les noms des couleurs et des matériaux viennent du fichier roll.db à côté de ce programme ou du catalogue installé avec lui, sauf si --catalogue ou la variable d’environnement VX_ROLL_DB en indique un autre. Seule la version pour Windows voit les imprimantes du système ; toute autre n’a que des imprimantes virtuelles : celles de --virtual, celles qu’indique VX_VIRTUAL_FLEET, ou six intégrées.</translation>
    </message>
    <message>
        <source>Tables fit the terminal, the width that COLUMNS names, or 80 columns; what is cut short ends with an ellipsis. Colours are omitted if the output is not a terminal or NO_COLOR is set. Characters that could control the terminal are shown as \u001b and the like.</source>
        <translation>Les tableaux tiennent dans le terminal, dans la largeur qu’indique COLUMNS ou dans 80 colonnes ; ce qui est abrégé se termine par des points de suspension. Les couleurs sont omises si la sortie n’est pas un terminal ou si NO_COLOR est définie. Les caractères qui pourraient commander le terminal sont affichés sous la forme \u001b, etc.</translation>
    </message>
    <message>
        <source>help takes at most one command, found &quot;%1&quot;</source>
        <translation>help accepte au plus une commande, trouvé : « %1 »</translation>
    </message>
    <message>
        <source>print a line for each thing that happens to the label printers</source>
        <translation>afficher une ligne pour tout ce qui arrive aux imprimantes d’étiquettes</translation>
    </message>
    <message>
        <source>It begins with the printers as they are, and then prints one line for each event until it is interrupted. With printers, only what happens to these. A level that only counts down is printed when it falls to 25, 10 and 5 %. With --json, each line is an object; the first one holds all printers.</source>
        <translation>Les imprimantes sont d’abord affichées telles qu’elles sont, puis une ligne pour chaque événement jusqu’à l’interruption. Si des imprimantes sont indiquées, seulement ce qui leur arrive. Un niveau qui ne fait que baisser est affiché à 25, 10 et 5 %. Avec --json, chaque ligne est un objet ; le premier contient toutes les imprimantes.</translation>
    </message>
    <message>
        <source>The letter case of a printer&apos;s name does not matter. With --json, it waits until every printer that it shows has reported and 0.1 seconds have passed without another report, but no longer than 2 seconds. It then spends up to half a second more on reports that have arrived by that time.</source>
        <translation>La casse du nom d’une imprimante n’a pas d’importance. Avec --json, status attend que chaque imprimante affichée se soit signalée et que 0,1 seconde se soit écoulée sans autre signalement, mais pas plus de 2 secondes. Il consacre ensuite jusqu’à une demi-seconde de plus aux signalements arrivés d’ici là.</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>il n’y a pas d’imprimante « %1 » ; vouliez-vous dire %2 ?</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; &quot;vxprintmon list&quot; shows all printers</source>
        <translation>il n’y a pas d’imprimante « %1 » ; « vxprintmon list » affiche toutes les imprimantes</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is not one of the label printers&apos; maker</source>
        <translation>« %1 » n’a pas d’état : son pilote « %2 » n’est pas du fabricant des imprimantes d’étiquettes</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: its driver &quot;%2&quot; is for a model that is not supported</source>
        <translation>« %1 » n’a pas d’état : son pilote « %2 » est celui d’un modèle non pris en charge</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no status: it has been offline since it was found; switch it on and check its cable</source>
        <translation>« %1 » n’a pas d’état : elle est hors ligne depuis qu’elle a été trouvée ; allumez-la et vérifiez son câble</translation>
    </message>
    <message>
        <source>Network printer</source>
        <translation>Imprimante réseau</translation>
    </message>
    <message>
        <source>Not managed</source>
        <translation>Non gérée</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and its severity</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>type inconnu</translation>
    </message>
    <message>
        <source>%1 % %2</source>
        <comment>how much of what is left</comment>
        <translation>%1 % %2</translation>
    </message>
    <message>
        <source>%1, level not known</source>
        <translation>%1, niveau non connu</translation>
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
        <translation>%1 étiquette</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 étiquettes</translation>
    </message>
    <message>
        <source>no, it is a network printer</source>
        <translation>non, c’est une imprimante réseau</translation>
    </message>
    <message>
        <source>no, you may not manage it</source>
        <translation>non, vous ne pouvez pas la gérer</translation>
    </message>
    <message>
        <source>no, it was removed and added again</source>
        <translation>non, elle a été supprimée puis ajoutée de nouveau</translation>
    </message>
    <message>
        <source>no, it was removed</source>
        <translation>non, elle a été supprimée</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>Offline since they were found, so without a status: %1</source>
        <translation>Hors ligne depuis leur découverte, donc sans état : %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1, reste</translation>
    </message>
    <message>
        <source>Active printer: %1</source>
        <translation>Imprimante active : %1</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>signification</translation>
    </message>
    <message>
        <source>what to do</source>
        <translation>que faire</translation>
    </message>
    <message>
        <source>boot loader</source>
        <translation>chargeur</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modèle</translation>
    </message>
    <message>
        <source>driver</source>
        <translation>pilote</translation>
    </message>
    <message>
        <source>port</source>
        <translation>port</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>numéro de série</translation>
    </message>
    <message>
        <source>watched</source>
        <translation>surveillée</translation>
    </message>
    <message>
        <source>cannot write the log %1: %2; it is tried again every second</source>
        <translation>impossible d’écrire le journal %1 : %2 ; nouvel essai chaque seconde</translation>
    </message>
    <message>
        <source>--signals is valid only with --json</source>
        <translation>--signals n’est valable qu’avec --json</translation>
    </message>
    <message>
        <source>watch --signals takes no printers: it prints every signal</source>
        <translation>watch --signals n’accepte pas d’imprimantes : tous les signaux sont affichés</translation>
    </message>
    <message>
        <source>--relative and --verbose are not valid with --json</source>
        <translation>--relative et --verbose ne sont pas valables avec --json</translation>
    </message>
    <message>
        <source> (was %1)</source>
        <comment>after what it is now</comment>
        <translation> (auparavant %1)</translation>
    </message>
    <message>
        <source>Supply removed</source>
        <translation>Consommable retiré</translation>
    </message>
    <message>
        <source>Ribbon 1 removed</source>
        <translation>Ruban 1 retiré</translation>
    </message>
    <message>
        <source>Ribbon 2 removed</source>
        <translation>Ruban 2 retiré</translation>
    </message>
    <message>
        <source>%1 loaded</source>
        <translation>%1 chargé</translation>
    </message>
    <message>
        <source>Ribbon 1: %1 loaded</source>
        <translation>Ruban 1 : %1 chargé</translation>
    </message>
    <message>
        <source>Ribbon 2: %1 loaded</source>
        <translation>Ruban 2 : %1 chargé</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Micrologiciel %1</translation>
    </message>
    <message>
        <source>now the active printer</source>
        <translation>désormais l’imprimante active</translation>
    </message>
    <message>
        <source>Firmware update: %1 %</source>
        <translation>Mise à jour du micrologiciel : %1 %</translation>
    </message>
    <message>
        <source>%1 s</source>
        <comment>seconds</comment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 used up</source>
        <translation>%1 épuisé</translation>
    </message>
    <message>
        <source> (was: %1)</source>
        <comment>a status, after what it is now</comment>
        <translation> (auparavant : %1)</translation>
    </message>
    <message>
        <source>, was %1</source>
        <comment>a level, after what it is now</comment>
        <translation>, auparavant %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommée</translation>
    </message>
    <message>
        <source>help takes at most one command</source>
        <translation>help prend au plus une commande</translation>
    </message>
    <message>
        <source>print this help, or more about a command</source>
        <translation>affiche cette aide, ou plus sur une commande</translation>
    </message>
    <message>
        <source>empty; expected a text of at most %1 characters</source>
        <translation>vide ; un texte de %1 caractères au plus est attendu</translation>
    </message>
    <message>
        <source>%1: there is also %2; remove one of them</source>
        <translation>%1 : il y a aussi %2 ; supprimez l’un des deux</translation>
    </message>
    <message>
        <source>not a column of this table; expected %1</source>
        <translation>pas une colonne de cette table ; attendu : %1</translation>
    </message>
    <message>
        <source>neither a column of this table nor a known language; expected %1 and languages such as en or de</source>
        <translation>ni une colonne de cette table ni une langue connue ; attendu : %1 et des langues comme en ou de</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in %2</source>
        <translation>« %1 » n’est pas dans %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a space; expected a key without spaces</source>
        <translation>« %1 » contient une espace ; une clé sans espaces est attendue</translation>
    </message>
    <message>
        <source>format %1 is not in %2</source>
        <translation>le format %1 n’est pas dans %2</translation>
    </message>
    <message>
        <source>material %1 is not in %2</source>
        <translation>la matière %1 n’est pas dans %2</translation>
    </message>
    <message>
        <source>KINDS</source>
        <translation>SORTES</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>RIBBON</source>
        <translation>RUBAN</translation>
    </message>
    <message>
        <source>NUMBERS</source>
        <translation>NUMÉROS</translation>
    </message>
    <message>
        <source>it has content that the tables cannot express</source>
        <translation>elle a un contenu que les tables ne peuvent pas exprimer</translation>
    </message>
    <message>
        <source>%1: files written: %2</source>
        <translation>%1 : fichiers écrits : %2</translation>
    </message>
    <message>
        <source>%1: it cannot be written as tables:</source>
        <translation>%1 : impossible de l’écrire sous forme de tables :</translation>
    </message>
    <message>
        <source>create a supply database from the tables in DIRECTORY</source>
        <translation>crée une base de consommables à partir des tables de DIRECTORY</translation>
    </message>
    <message>
        <source>All mistakes in the tables are printed, up to 50, and FILE is written only if there are none. A table may be separated by commas or semicolons, or by tabs, then also as a file .tsv.</source>
        <translation>Toutes les erreurs des tables sont affichées, 50 au plus, et FILE n’est écrit que s’il n’y en a aucune. Les champs d’une table sont séparés par des virgules, des points-virgules ou des tabulations ; avec des tabulations, aussi dans un fichier .tsv.</translation>
    </message>
    <message>
        <source>verify a supply database or a directory of tables</source>
        <translation>vérifie une base de consommables ou un répertoire de tables</translation>
    </message>
    <message>
        <source>Nothing is written. All that is wrong is printed, up to 50 lines.</source>
        <translation>Rien n’est écrit. Tout ce qui est faux est affiché, 50 lignes au plus.</translation>
    </message>
    <message>
        <source>list the supplies and ribbons in FILE</source>
        <translation>liste les consommables et rubans de FILE</translation>
    </message>
    <message>
        <source>With the numbers in identifiers that stand for them, and their names.</source>
        <translation>Avec les numéros qui les désignent dans les identifiants, et leurs noms.</translation>
    </message>
    <message>
        <source>print what FILE has about a supply or a ribbon</source>
        <translation>affiche ce que FILE contient sur un consommable ou un ruban</translation>
    </message>
    <message>
        <source>print what the identifier of a roll or a ribbon stands for</source>
        <translation>affiche ce que désigne l’identifiant d’un rouleau ou d’un ruban</translation>
    </message>
    <message>
        <source>IDENTIFIER is what a driver publishes: the 20 characters of a supply or the number of a ribbon. If FILE does not have it, the exit status is 1.</source>
        <translation>IDENTIFIER est ce que publie un pilote : les 20 caractères d’un consommable ou le numéro d’un ruban. Si FILE ne le contient pas, le code de sortie est 1.</translation>
    </message>
    <message>
        <source>write the tables and pictures of FILE to DIRECTORY</source>
        <translation>écrit les tables et les images de FILE dans DIRECTORY</translation>
    </message>
    <message>
        <source>A database that is built from them has the same bytes.</source>
        <translation>Une base créée à partir de celles-ci a les mêmes octets.</translation>
    </message>
    <message>
        <source>write tables with examples to DIRECTORY</source>
        <translation>écrit des tables avec des exemples dans DIRECTORY</translation>
    </message>
    <message>
        <source>A start for a catalogue of your own: every column with its name and an example.</source>
        <translation>Un début pour votre propre catalogue : chaque colonne avec son nom et un exemple.</translation>
    </message>
    <message>
        <source>Builds and reads the supply databases of printers.</source>
        <translation>Crée et lit les bases de consommables des imprimantes.</translation>
    </message>
    <message>
        <source>print names in the language TAG (&quot;de&quot;, &quot;ja&quot;) and not in English</source>
        <translation>affiche les noms dans la langue TAG (« de », « ja ») et non en anglais</translation>
    </message>
    <message>
        <source>replace existing files</source>
        <translation>remplace les fichiers existants</translation>
    </message>
    <message>
        <source>not UTF-8 text; save the table as UTF-8</source>
        <translation>pas du texte UTF-8 ; enregistrez la table en UTF-8</translation>
    </message>
    <message>
        <source>a row of %1 refers to a missing row of %2</source>
        <translation>une ligne de %1 renvoie à une ligne manquante de %2</translation>
    </message>
    <message>
        <source>English is missing</source>
        <translation>l’anglais manque</translation>
    </message>
    <message>
        <source>%1 exists already; --force replaces it</source>
        <translation>%1 existe déjà ; --force le remplace</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>impossible de créer le dossier</translation>
    </message>
    <message>
        <source>not a directory</source>
        <translation>pas un répertoire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is what a printer reports when nothing is loaded</source>
        <translation>« %1 » est ce que signale une imprimante quand rien n’est chargé</translation>
    </message>
    <message>
        <source>no supply of the kind %1</source>
        <translation>aucun consommable de la sorte %1</translation>
    </message>
    <message>
        <source>Roll %1 of the kind %2, which was %3 feet (%4 inches) long when it was new.</source>
        <translation>Rouleau %1 de la sorte %2, long de %3 pieds (%4 pouces) quand il était neuf.</translation>
    </message>
    <message>
        <source>The catalogue has another length, so the library cannot tell how much of the roll is left.</source>
        <translation>Le catalogue a une autre longueur ; la bibliothèque ne peut donc pas dire ce qu’il reste du rouleau.</translation>
    </message>
    <message>
        <source>no ribbon with the number %1</source>
        <translation>aucun ruban de numéro %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a SKU; show prints what the file has about it</source>
        <translation>« %1 » est une référence (SKU) ; show affiche ce que le fichier en contient</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no identifier; expected the 20 characters of a supply (8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon from 1 to %2</source>
        <translation>« %1 » n’est pas un identifiant ; attendu : les 20 caractères d’un consommable (8 chiffres hexadécimaux, 6 décimaux et 6 hexadécimaux) ou le numéro d’un ruban de 1 à %2</translation>
    </message>
    <message>
        <source>%1; similar: %2</source>
        <translation>%1 ; semblables : %2</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... et %1 de plus</translation>
    </message>
    <message>
        <source>kinds</source>
        <translation>sortes</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 octets</translation>
    </message>
    <message>
        <source>numbers</source>
        <translation>numéros</translation>
    </message>
    <message>
        <source>prints on</source>
        <translation>imprime sur</translation>
    </message>
    <message>
        <source>SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.</source>
        <translation>SERVICE est supplyd, m4, printqd, status, un numéro ou un nom affiché par list.</translation>
    </message>
    <message>
        <source>An endpoint that does not answer is listed too, with the reason in place of its process.</source>
        <translation>Un point d’accès qui ne répond pas est listé aussi, avec la raison à la place de son processus.</translation>
    </message>
    <message>
        <source>Arguments for text parameters are taken as they are, all others are read as JSON. Of several methods of that name, the one whose parameters fit the arguments is called.</source>
        <translation>Les arguments des paramètres de texte sont pris tels quels, tous les autres sont lus comme du JSON. De plusieurs méthodes de ce nom, celle dont les paramètres conviennent aux arguments est appelée.</translation>
    </message>
    <message>
        <source>If the endpoint goes away, watch waits for it and goes on.</source>
        <translation>Si le point d’accès disparaît, watch l’attend et continue.</translation>
    </message>
    <message>
        <source>check everything from the spooler to the catalogue</source>
        <translation>vérifier tout, du spouleur au catalogue</translation>
    </message>
    <message>
        <source>show all label printers in a live table</source>
        <translation>afficher toutes les imprimantes d’étiquettes dans un tableau tenu à jour</translation>
    </message>
    <message>
        <source>Start the service &quot;Spooler&quot;: run &quot;net start spooler&quot; as an administrator.</source>
        <translation>Démarrez le service « Spooler » : exécutez « net start spooler » en tant qu’administrateur.</translation>
    </message>
    <message>
        <source>Restart the service &quot;Spooler&quot;: run &quot;net stop spooler&quot; and &quot;net start spooler&quot; as an administrator.</source>
        <translation>Redémarrez le service « Spooler » : exécutez « net stop spooler » puis « net start spooler » en tant qu’administrateur.</translation>
    </message>
    <message>
        <source>Connect the printer by USB, switch it on and install its driver.</source>
        <translation>Raccordez l’imprimante par USB, allumez-la et installez son pilote.</translation>
    </message>
    <message>
        <source>Remove the printer from Windows and install it again with its driver.</source>
        <translation>Supprimez l’imprimante de Windows et réinstallez-la avec son pilote.</translation>
    </message>
    <message>
        <source>Take the name from the output of &quot;vxprintmon list&quot;.</source>
        <translation>Reprenez le nom indiqué par « vxprintmon list ».</translation>
    </message>
    <message>
        <source>Ask an administrator to allow you to manage this printer, in the printer&apos;s properties under Security.</source>
        <translation>Demandez à un administrateur de vous autoriser à gérer cette imprimante, dans les propriétés de l’imprimante, sous « Sécurité ».</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows and switch off &quot;Use Printer Offline&quot; in its menu.</source>
        <translation>Ouvrez la file d’attente de l’imprimante dans Windows et désactivez « Utiliser l’imprimante hors connexion » dans son menu.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its USB cable at both ends.</source>
        <translation>Allumez l’imprimante et vérifiez les deux extrémités de son câble USB.</translation>
    </message>
    <message>
        <source>Connect the printer to this computer by USB, or run the monitor on the computer that it is connected to.</source>
        <translation>Raccordez l’imprimante à cet ordinateur par USB, ou exécutez le programme sur l’ordinateur auquel elle est raccordée.</translation>
    </message>
    <message>
        <source>Open the printer&apos;s queue in Windows. Resume it if it is paused, and see to what it reports.</source>
        <translation>Ouvrez la file d’attente de l’imprimante dans Windows. Reprenez-la si elle est suspendue et traitez ce qu’elle signale.</translation>
    </message>
    <message>
        <source>Switch the printer off and on again. If that does not help, install its current driver.</source>
        <translation>Éteignez l’imprimante et rallumez-la. Si cela n’aide pas, installez son pilote actuel.</translation>
    </message>
    <message>
        <source>Plug the printer&apos;s USB cable in again, or choose the port that it is on in the printer&apos;s properties under Ports.</source>
        <translation>Rebranchez le câble USB de l’imprimante, ou choisissez le port où elle se trouve dans les propriétés de l’imprimante, sous « Ports ».</translation>
    </message>
    <message>
        <source>Put a file roll.db beside the program, or name one with --catalogue or VX_ROLL_DB. &quot;rolldb build&quot; makes one, &quot;rolldb check&quot; says what is wrong with one.</source>
        <translation>Placez un fichier roll.db à côté du programme, ou indiquez-en un par --catalogue ou VX_ROLL_DB. « rolldb build » en crée un, « rolldb check » dit ce qui ne va pas.</translation>
    </message>
    <message>
        <source>Get a current roll.db, or add what is loaded to its tables and run &quot;rolldb build&quot;.</source>
        <translation>Procurez-vous un roll.db à jour, ou ajoutez ce qui est chargé à ses tables et exécutez « rolldb build ».</translation>
    </message>
    <message>
        <source>If other programs are to ask for the printers, start the program that watches them.</source>
        <translation>Si d’autres programmes doivent interroger les imprimantes, démarrez le programme qui les surveille.</translation>
    </message>
    <message>
        <source>End the program that does not answer, and start it again.</source>
        <translation>Fermez le programme qui ne répond pas et redémarrez-le.</translation>
    </message>
    <message>
        <source>Let nobody else write to that folder, or ask an administrator to remove what another user has put there.</source>
        <translation>Demandez à un administrateur de supprimer ce que l’autre utilisateur y a placé.</translation>
    </message>
    <message>
        <source>Nothing needs to be done, unless this is a label printer that should be watched: then install its driver.</source>
        <translation>Il n’y a rien à faire, sauf s’il s’agit d’une imprimante d’étiquettes à surveiller : installez alors son pilote.</translation>
    </message>
    <message>
        <source>Nothing needs to be done: not every printer has this value.</source>
        <translation>Il n’y a rien à faire : toutes les imprimantes n’ont pas cette valeur.</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>remarque</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problème</translation>
    </message>
    <message>
        <source>Everything is in order.</source>
        <translation>Tout est en ordre.</translation>
    </message>
    <message>
        <source>Everything else is in order.</source>
        <translation>Tout le reste est en ordre.</translation>
    </message>
    <message>
        <source>Driver values not published: %1.</source>
        <translation>Valeurs que le pilote ne publie pas : %1.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’imprimante « %1 ».</translation>
    </message>
    <message>
        <source>Similar names: %1.</source>
        <translation>Noms semblables : %1.</translation>
    </message>
    <message>
        <source>problems found: %1</source>
        <translation>problèmes trouvés : %1</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is not running (state %1).</source>
        <translation>Le service « Spooler » n’est pas en cours d’exécution (état %1).</translation>
    </message>
    <message>
        <source>The service &quot;Spooler&quot; is running.</source>
        <translation>Le service « Spooler » est en cours d’exécution.</translation>
    </message>
    <message>
        <source>The print spooler lists a printer without a name, a port or a driver, so the library cannot look for printers.</source>
        <translation>Le spouleur d’impression indique une imprimante sans nom, sans port ou sans pilote ; la bibliothèque ne peut donc pas chercher d’imprimantes.</translation>
    </message>
    <message>
        <source>The print spooler lists no label printer that can be watched. Printers: %1.</source>
        <translation>Le spouleur d’impression n’indique aucune imprimante d’étiquettes qui puisse être surveillée. Imprimantes : %1.</translation>
    </message>
    <message>
        <source>The print spooler answers. Printers: %1, label printers: %2.</source>
        <translation>Le spouleur d’impression répond. Imprimantes : %1, imprimantes d’étiquettes : %2.</translation>
    </message>
    <message>
        <source>The device registry has no USB device of a label printer.</source>
        <translation>Le registre des périphériques ne contient aucun périphérique USB d’imprimante d’étiquettes.</translation>
    </message>
    <message>
        <source>USB devices of class %1: %2.</source>
        <translation>Périphériques USB de la classe %1 : %2.</translation>
    </message>
    <message>
        <source>There is no catalogue %1.</source>
        <translation>Le catalogue %1 n’existe pas.</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>Le catalogue %1 ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>The file %1 is no supply catalogue.</source>
        <translation>Le fichier %1 n’est pas un catalogue de consommables.</translation>
    </message>
    <message>
        <source>The catalogue %1 has the schema version %2; only version %3 can be read.</source>
        <translation>Le catalogue %1 a la version de schéma %2 ; seule la version %3 peut être lue.</translation>
    </message>
    <message>
        <source>The catalogue %1 is damaged or empty.</source>
        <translation>Le catalogue %1 est endommagé ou vide.</translation>
    </message>
    <message>
        <source>Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.</source>
        <translation>Catalogue %1, version de schéma %2. Consommables : %3, rubans : %4.</translation>
    </message>
    <message>
        <source>The endpoint %1 is not running.</source>
        <translation>Le point de terminaison %1 n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>The endpoint %1 does not answer: %2.</source>
        <translation>Le point de terminaison %1 ne répond pas : %2.</translation>
    </message>
    <message>
        <source>The endpoint %1 answers: %2, process %3.</source>
        <translation>Le point de terminaison %1 répond : %2, processus %3.</translation>
    </message>
    <message>
        <source>%1: not published; this model has one ribbon</source>
        <translation>%1 : non publiée ; ce modèle a un seul ruban</translation>
    </message>
    <message>
        <source>%1: not published</source>
        <translation>%1 : non publiée</translation>
    </message>
    <message>
        <source>%1; expected the type %2</source>
        <translation>%1 ; type attendu : %2</translation>
    </message>
    <message>
        <source>%1; expected %2 to %3 bytes</source>
        <translation>%1 ; de %2 à %3 octets attendus</translation>
    </message>
    <message>
        <source>%1; a number up to %2 is plausible</source>
        <translation>%1 ; un nombre jusqu’à %2 est plausible</translation>
    </message>
    <message>
        <source>The status code &quot;%1&quot; is not a number.</source>
        <translation>Le code d’état « %1 » n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Status %1: %2. %3</source>
        <translation>État %1 : %2. %3</translation>
    </message>
    <message>
        <source>%1: nothing is loaded.</source>
        <translation>%1 : rien n’est chargé.</translation>
    </message>
    <message>
        <source>%1: the catalogue does not know %2.</source>
        <translation>%1 : le catalogue ne connaît pas %2.</translation>
    </message>
    <message>
        <source>%1: %2 is %3 in the catalogue.</source>
        <translation>%1 : %2 est %3 dans le catalogue.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is another maker&apos;s, so the printer is not watched.</source>
        <translation>Le pilote « %1 » est d’un autre fabricant ; l’imprimante n’est donc pas surveillée.</translation>
    </message>
    <message>
        <source>The driver &quot;%1&quot; is for a model that is not supported, so the printer is not watched.</source>
        <translation>Le pilote « %1 » est celui d’un modèle non pris en charge ; l’imprimante n’est donc pas surveillée.</translation>
    </message>
    <message>
        <source>Model %1, driver &quot;%2&quot;.</source>
        <translation>Modèle %1, pilote « %2 ».</translation>
    </message>
    <message>
        <source>You may manage the printer.</source>
        <translation>Vous pouvez gérer l’imprimante.</translation>
    </message>
    <message>
        <source>You may not manage the printer, so it is not watched.</source>
        <translation>Vous ne pouvez pas gérer l’imprimante ; elle n’est donc pas surveillée.</translation>
    </message>
    <message>
        <source>The printer is reached over a network (port %1), so it is listed, but not watched.</source>
        <translation>L’imprimante est accessible par le réseau (port %1) ; elle est donc affichée, mais pas surveillée.</translation>
    </message>
    <message>
        <source>No USB device of a label printer is on the printer&apos;s port %1.</source>
        <translation>Aucun périphérique USB d’imprimante d’étiquettes n’est sur le port %1 de l’imprimante.</translation>
    </message>
    <message>
        <source>Port %1, with the device %2.</source>
        <translation>Port %1, avec le périphérique %2.</translation>
    </message>
    <message>
        <source>The printer is set to be used offline.</source>
        <translation>L’imprimante est réglée pour être utilisée hors connexion.</translation>
    </message>
    <message>
        <source>Windows reports the printer offline.</source>
        <translation>Windows signale que l’imprimante est hors connexion.</translation>
    </message>
    <message>
        <source>The printer is online.</source>
        <translation>L’imprimante est en ligne.</translation>
    </message>
    <message>
        <source>The queue reports nothing.</source>
        <translation>La file d’attente ne signale rien.</translation>
    </message>
    <message>
        <source>The queue reports: %1.</source>
        <translation>La file d’attente signale : %1.</translation>
    </message>
    <message>
        <source>%1 failed: %2 (error %3).</source>
        <translation>Échec de %1 : %2 (erreur %3).</translation>
    </message>
    <message>
        <source>top draws on a terminal, but its input or output is none; use status, or top --json</source>
        <translation>top dessine sur un terminal, mais son entrée ou sa sortie n’en est pas un ; utilisez status ou top --json</translation>
    </message>
    <message>
        <source>the terminal cannot be used: %1</source>
        <translation>le terminal ne peut pas être utilisé : %1</translation>
    </message>
    <message>
        <source>this console does not know escape sequences; use that of Windows 10 or newer</source>
        <translation>cette console ne connaît pas les séquences d’échappement ; utilisez celle de Windows 10 ou plus récent</translation>
    </message>
    <message>
        <source>Printers: %1</source>
        <translation>Imprimantes : %1</translation>
    </message>
    <message>
        <source>with errors: %1</source>
        <translation>en erreur : %1</translation>
    </message>
    <message>
        <source>shown: %1 to %2</source>
        <translation>affichées : %1 à %2</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>supprimée</translation>
    </message>
    <message>
        <source>q quit</source>
        <translation>q quitter</translation>
    </message>
    <message>
        <source>s by severity</source>
        <translation>s par gravité</translation>
    </message>
    <message>
        <source>n by name</source>
        <translation>n par nom</translation>
    </message>
    <message>
        <source>l by level</source>
        <translation>l par niveau</translation>
    </message>
    <message>
        <source>arrows, Page Up, Page Down: scroll</source>
        <translation>flèches, Page préc., Page suiv. : défiler</translation>
    </message>
    <message>
        <source>a file to read and a file to write</source>
        <translation>un fichier à lire et un fichier à écrire</translation>
    </message>
    <message>
        <source>case: expected show, explain, redact or verify, found &quot;%1&quot;</source>
        <translation>case : show, explain, redact ou verify attendu, « %1 » trouvé</translation>
    </message>
    <message>
        <source>line %1, after %2 s</source>
        <translation>ligne %1, après %2 s</translation>
    </message>
    <message>
        <source>Signals and log lines that are about no printer: the first difference is at number %1</source>
        <translation>Signaux et lignes du journal qui ne concernent aucune imprimante : la première différence est au numéro %1</translation>
    </message>
    <message>
        <source>Signals and log lines of &quot;%1&quot;: the first difference is at number %2</source>
        <translation>Signaux et lignes du journal de « %1 » : la première différence est au numéro %2</translation>
    </message>
    <message>
        <source>recorded</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>replayed</source>
        <translation>rejoué</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2 and more: %3</source>
        <translation>Preuves, à partir de %1 : lignes %2 et autres : %3</translation>
    </message>
    <message>
        <source>Evidence, from %1: lines %2</source>
        <translation>Preuves, à partir de %1 : lignes %2</translation>
    </message>
    <message>
        <source>Nothing in this case is recognised.</source>
        <translation>Rien n&apos;est reconnu dans ce cas.</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>octet %1 : %2</translation>
    </message>
    <message>
        <source>expected an object with the list &quot;findings&quot;</source>
        <translation>un objet avec la liste « findings » est attendu</translation>
    </message>
    <message>
        <source>there are more than %1 findings</source>
        <translation>il y a plus de %1 constats</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be %2</source>
        <translation>« %1 » doit être %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de membre « %1 »</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>a condition or a list of conditions</source>
        <translation>une condition ou une liste de conditions</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>une liste de textes</translation>
    </message>
    <message>
        <source>a number of seconds</source>
        <translation>un nombre de secondes</translation>
    </message>
    <message>
        <source>a text, or texts by their languages with &quot;en&quot; among them</source>
        <translation>un texte, ou des textes par langue dont « en »</translation>
    </message>
    <message>
        <source>%1: the file is larger than %2 bytes</source>
        <translation>%1 : le fichier dépasse %2 octets</translation>
    </message>
    <message>
        <source>%1: there is such a file already; name another one</source>
        <translation>%1 : ce fichier existe déjà ; nommez-en un autre</translation>
    </message>
    <message>
        <source>%1: lines written: %2, left out: %3</source>
        <translation>%1 : lignes écrites : %2, omises : %3</translation>
    </message>
    <message>
        <source>Read it before you send it: it is plain text.</source>
        <translation>Lisez-le avant de l&apos;envoyer : c&apos;est du texte brut.</translation>
    </message>
    <message>
        <source>a monitoring thread does not come to rest</source>
        <translation>un thread de surveillance ne se met pas au repos</translation>
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
        <translation>%1, pendant %2</translation>
    </message>
    <message>
        <source>with</source>
        <translation>avec</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contient</translation>
    </message>
    <message>
        <source>steps: %1, signals: %2, log lines: %3</source>
        <translation>étapes : %1, signaux : %2, lignes du journal : %3</translation>
    </message>
    <message>
        <source>names</source>
        <translation>noms</translation>
    </message>
    <message>
        <source>replaced by others</source>
        <translation>remplacés par d&apos;autres</translation>
    </message>
    <message>
        <source>as they are; &quot;vxprintmon case redact&quot; replaces them</source>
        <translation>tels quels ; « vxprintmon case redact » les remplace</translation>
    </message>
    <message>
        <source>end</source>
        <translation>fin</translation>
    </message>
    <message>
        <source>missing: the recording was cut short</source>
        <translation>manque : l&apos;enregistrement a été interrompu</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>plus vite</translation>
    </message>
    <message>
        <source>how often values changed faster than they were read: %1</source>
        <translation>nombre de fois où des valeurs ont changé plus vite qu&apos;elles n&apos;étaient lues : %1</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Avertissements et erreurs</translation>
    </message>
    <message>
        <source>What was loaded</source>
        <translation>Ce qui était chargé</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>absente</translation>
    </message>
    <message>
        <source>this program has no virtual printers, so it cannot play a case; run &quot;vxprintmon case verify&quot; on Linux</source>
        <translation>ce programme n&apos;a pas d&apos;imprimantes virtuelles et ne peut donc pas rejouer un cas ; exécutez « vxprintmon case verify » sous Linux</translation>
    </message>
    <message>
        <source>The recording was cut short; it is compared up to there.</source>
        <translation>L&apos;enregistrement a été interrompu ; il est comparé jusque-là.</translation>
    </message>
    <message>
        <source>No signals were recorded; only the log is compared.</source>
        <translation>Aucun signal n&apos;a été enregistré ; seul le journal est comparé.</translation>
    </message>
    <message>
        <source>The same: %1 signals and %2 log lines in %3 steps.</source>
        <translation>Identique : %1 signaux et %2 lignes du journal en %3 étapes.</translation>
    </message>
    <message>
        <source>the library does something else than was recorded</source>
        <translation>la bibliothèque fait autre chose que ce qui a été enregistré</translation>
    </message>
    <message>
        <source>case explain: recognise what the table FILE describes as well</source>
        <translation>case explain : reconnaître aussi ce que décrit la table FILE</translation>
    </message>
    <message>
        <source>show, explain, redact or verify a case file</source>
        <translation>montrer, expliquer, anonymiser ou vérifier un fichier de cas</translation>
    </message>
    <message>
        <source>an action and one or two files</source>
        <translation>une action et un ou deux fichiers</translation>
    </message>
    <message>
        <source>&quot;case show FILE&quot; tells what is in a case file. &quot;case explain FILE&quot; names the faults that it recognises, with the lines that show them and what to do. &quot;case redact IN OUT&quot; writes a copy without the names of people, computers and printers, serial numbers and addresses. &quot;case verify FILE&quot; plays the case again and compares what the library does now with what was recorded.</source>
        <translation>« case show FILE » raconte ce que contient un fichier de cas. « case explain FILE » nomme les défauts qu&apos;il reconnaît, avec les lignes qui les montrent et ce qu&apos;il faut faire. « case redact IN OUT » écrit une copie sans les noms de personnes, d&apos;ordinateurs et d&apos;imprimantes, les numéros de série ni les adresses. « case verify FILE » rejoue le cas et compare ce que fait la bibliothèque maintenant avec ce qui a été enregistré.</translation>
    </message>
    <message>
        <source>%1: its catalogue cannot be written to a temporary file: %2</source>
        <translation>%1 : son catalogue ne peut pas être écrit dans un fichier temporaire : %2</translation>
    </message>
    <message>
        <source>%1:%2: a row does not fit the table &quot;%3&quot; of a catalogue: %4</source>
        <translation>%1:%2 : une ligne ne convient pas à la table « %3 » d&apos;un catalogue : %4</translation>
    </message>
    <message>
        <source>record: keep the file below SIZE, such as 64M; then it keeps the beginning and the latest</source>
        <translation>record : garder le fichier sous SIZE, par exemple 64M ; il garde alors le début et le plus récent</translation>
    </message>
    <message>
        <source>record: keep names, serial numbers and addresses as they are</source>
        <translation>record : laisser tels quels les noms, numéros de série et adresses</translation>
    </message>
    <message>
        <source>record what printers do, for those who help</source>
        <translation>enregistrer ce que font les imprimantes, pour ceux qui aident</translation>
    </message>
    <message>
        <source>It records everything that the print spooler tells the library and what the library makes of it, until it is interrupted, beside other programs that use the printers. FILE is complete also after a crash, and is a case file for &quot;case&quot;, --virtual and those who help. It must not exist. Every half minute it prints what it has recorded.</source>
        <translation>Enregistre, à côté d&apos;autres programmes qui utilisent les imprimantes, tout ce que le spouleur d&apos;impression dit à la bibliothèque et ce qu&apos;elle en fait, jusqu&apos;à son interruption. FILE est complet même après un plantage ; c&apos;est un fichier de cas pour « case », --virtual et ceux qui aident. Il ne doit pas exister. Chaque demi-minute, ce qui est enregistré est affiché.</translation>
    </message>
    <message>
        <source>%1  printers %2, changes %3, signals %4, log lines %5, %6</source>
        <translation>%1  imprimantes %2, changements %3, signaux %4, lignes du journal %5, %6</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Log lines</source>
        <translation>Lignes du journal</translation>
    </message>
    <message>
        <source>Faster than read</source>
        <translation>Plus vite que lus</translation>
    </message>
    <message>
        <source>Left out to keep the limit</source>
        <translation>Omis à cause de la limite</translation>
    </message>
    <message>
        <source>Not written</source>
        <translation>Non écrit</translation>
    </message>
    <message>
        <source>The file has the names of printers, people and computers. &quot;vxprintmon case redact&quot; takes them out.</source>
        <translation>Le fichier contient les noms d&apos;imprimantes, de personnes et d&apos;ordinateurs. « vxprintmon case redact » les retire.</translation>
    </message>
    <message>
        <source>Names, serial numbers and addresses are replaced. &quot;vxprintmon case show&quot; shows what is in the file.</source>
        <translation>Les noms, numéros de série et adresses sont remplacés. « vxprintmon case show » montre ce que contient le fichier.</translation>
    </message>
    <message>
        <source>--limit: expected a size from 1M to 1G such as 64M, found &quot;%1&quot;</source>
        <translation>--limit : une taille de 1M à 1G telle que 64M est attendue, « %1 » trouvé</translation>
    </message>
    <message>
        <source>%1 exists and is not replaced; choose another name, or delete it first</source>
        <translation>%1 existe et n&apos;est pas remplacé ; choisissez un autre nom ou supprimez-le d&apos;abord</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>impossible de créer %1 : %2</translation>
    </message>
    <message>
        <source>Recording into %1.</source>
        <translation>Enregistrement dans %1.</translation>
    </message>
    <message>
        <source>Recording into %1, until it is interrupted (Ctrl-C).</source>
        <translation>Enregistrement dans %1, jusqu&apos;à l&apos;interruption (Ctrl-C).</translation>
    </message>
    <message>
        <source>cannot write %1: %2; it is tried again every second</source>
        <translation>impossible d&apos;écrire %1 : %2 ; nouvel essai chaque seconde</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>impossible d&apos;écrire %1 : %2</translation>
    </message>
    <message>
        <source>watch: also record what is used, in the user&apos;s history or --file</source>
        <translation>watch : enregistrer aussi ce qui est consommé, dans l’historique de l’utilisateur ou dans --file</translation>
    </message>
    <message>
        <source>history: print a table for spreadsheets (CSV)</source>
        <translation>history : afficher un tableau pour tableurs (CSV)</translation>
    </message>
    <message>
        <source>print what printers have used</source>
        <translation>afficher ce que les imprimantes ont consommé</translation>
    </message>
    <message>
        <source>It prints one line for each roll and ribbon: what was loaded, from when until when, how much of it was used, and how much a day on average. A printer is named by its name or its serial number. &quot;vxprintmon watch --history&quot; records all this.</source>
        <translation>Une ligne est affichée pour chaque rouleau et chaque ruban : ce qui était chargé, de quand à quand, combien en a été consommé, et combien par jour en moyenne. Une imprimante est désignée par son nom ou son numéro de série. « vxprintmon watch --history » enregistre tout cela.</translation>
    </message>
    <message>
        <source>say when rolls and ribbons will end</source>
        <translation>dire quand les rouleaux et les rubans seront épuisés</translation>
    </message>
    <message>
        <source>say whether a job fits: the right supply and ribbon, and enough</source>
        <translation>dire si une tâche passe : le bon consommable, le bon ruban, et assez</translation>
    </message>
    <message>
        <source>a printer, the SKU of a supply, a number of labels and SKUs of ribbons</source>
        <translation>une imprimante, le SKU d’un consommable, un nombre d’étiquettes et des SKU de rubans</translation>
    </message>
    <message>
        <source>The exit status is 0 if the job can be printed with what is loaded, 3 if not, and 4 if that is not known. Each ribbon that is named must be loaded; without one, any loaded ribbon will do that suits the supply and lasts.</source>
        <translation>Le code de sortie est 0 si la tâche peut être imprimée avec ce qui est chargé, 3 sinon, et 4 si on ne le sait pas. Chaque ruban indiqué doit être chargé ; sans indication, il suffit d’un ruban chargé qui convient au consommable et qui suffit.</translation>
    </message>
    <message>
        <source>enough takes a number of labels between 1 and 2147483647, found &quot;%1&quot;</source>
        <translation>enough attend un nombre d’étiquettes entre 1 et 2147483647, trouvé : « %1 »</translation>
    </message>
    <message>
        <source>the catalogue has no %1</source>
        <translation>le catalogue n’a pas %1</translation>
    </message>
    <message>
        <source>the catalogue has no %1; did you mean %2?</source>
        <translation>le catalogue n’a pas %1 ; vouliez-vous dire %2 ?</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>two durations</comment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>EMPLACEMENT</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>RESTE</translation>
    </message>
    <message>
        <source>LASTS ABOUT</source>
        <translation>DURE ENVIRON</translation>
    </message>
    <message>
        <source>PROBABLY</source>
        <translation>PROBABLEMENT</translation>
    </message>
    <message>
        <source>forecasts need a history of what printers use; &quot;vxprintmon watch --history&quot; records one</source>
        <translation>les prévisions ont besoin d’un historique de consommation ; « vxprintmon watch --history » en enregistre un</translation>
    </message>
    <message>
        <source>over 2 years</source>
        <translation>plus de 2 ans</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 j</translation>
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
        <translation>pas encore connu</translation>
    </message>
    <message>
        <source>the history cannot be read: %1</source>
        <translation>l’historique ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>still loaded</source>
        <translation>encore chargé</translation>
    </message>
    <message>
        <source>LOADED</source>
        <translation>CHARGÉ</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>DE</translation>
    </message>
    <message>
        <source>UNTIL</source>
        <translation>À</translation>
    </message>
    <message>
        <source>USED</source>
        <translation>CONSOMMÉ</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>ÉTIQUETTES</translation>
    </message>
    <message>
        <source>A DAY</source>
        <translation>PAR JOUR</translation>
    </message>
    <message>
        <source> (serial number %1)</source>
        <translation> (numéro de série %1)</translation>
    </message>
    <message>
        <source>Changes that could not be recorded: %1, from %2 to %3</source>
        <translation>Changements qui n’ont pas pu être enregistrés : %1, du %2 au %3</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;</source>
        <translation>l’historique ne contient pas d’imprimante « %1 »</translation>
    </message>
    <message>
        <source>the history has no printer &quot;%1&quot;; did you mean %2?</source>
        <translation>l’historique ne contient pas d’imprimante « %1 » ; vouliez-vous dire %2 ?</translation>
    </message>
    <message>
        <source>--csv and --json are not valid together</source>
        <translation>--csv et --json ne peuvent pas être utilisés ensemble</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. &quot;vxprintmon watch --history&quot; records what is used.</source>
        <translation>Rien n’a encore été enregistré. « vxprintmon watch --history » enregistre ce qui est consommé.</translation>
    </message>
    <message>
        <source>the history was damaged, is now called %1, and has been begun anew: %2</source>
        <translation>l’historique était endommagé, s’appelle maintenant %1 et a été recommencé : %2</translation>
    </message>
    <message>
        <source>cannot write the history %1</source>
        <translation>impossible d’écrire l’historique %1</translation>
    </message>
    <message>
        <source>cannot write the history %1; it is tried again every second</source>
        <translation>impossible d’écrire l’historique %1 ; une nouvelle tentative a lieu chaque seconde</translation>
    </message>
    <message>
        <source>%1 lasts</source>
        <translation>%1 : durée</translation>
    </message>
    <message>
        <source>about %1, probably %2 to %3</source>
        <translation>environ %1, probablement %2 à %3</translation>
    </message>
    <message>
        <source>LASTS</source>
        <translation>DURÉE</translation>
    </message>
    <message>
        <source>--file is valid only with --history</source>
        <translation>--file n’est valable qu’avec --history</translation>
    </message>
    <message>
        <source>history, forecast, watch --history: FILE in place of the user&apos;s history</source>
        <translation>history, forecast, watch --history : FILE au lieu de l’historique de l’utilisateur</translation>
    </message>
    <message>
        <source>watch, forecast: warn when fewer LABELS are left on a roll; watch: 100 by default, 0 for never</source>
        <translation>watch, forecast : avertir quand il reste moins d’étiquettes (LABELS) sur un rouleau ; watch : 100 par défaut, 0 pour jamais</translation>
    </message>
    <message>
        <source>watch, forecast: warn of rolls that have fewer LABELS than a job needs</source>
        <translation>watch, forecast : avertir des rouleaux qui ont moins d’étiquettes (LABELS) qu’il n’en faut pour une tâche</translation>
    </message>
    <message>
        <source>watch, forecast: warn of what will probably end before the shift does; TIMES such as 14:00,22:00</source>
        <translation>watch, forecast : avertir de ce qui sera probablement épuisé avant la fin du poste ; TIMES, par exemple 14:00,22:00</translation>
    </message>
    <message>
        <source>--%1: expected a whole number from %2 to 2147483647, found &quot;%3&quot;</source>
        <translation>--%1 : un nombre entier de %2 à 2147483647 est attendu, trouvé : « %3 »</translation>
    </message>
    <message>
        <source>--%1: expected times such as 14:00,22:00, found &quot;%2&quot;</source>
        <translation>--%1 : des heures comme 14:00,22:00 sont attendues, trouvé : « %2 »</translation>
    </message>
    <message>
        <source>It learns from the user&apos;s history, which &quot;vxprintmon watch --history&quot; records. In four of five cases, what is loaded ends between the two times of the last column. With --warn-below, --job or --shift-end, it also prints what &quot;watch&quot; would warn of.</source>
        <translation>La commande apprend de l’historique de l’utilisateur, que « vxprintmon watch --history » enregistre. Dans quatre cas sur cinq, ce qui est chargé s’épuise entre les deux temps de la dernière colonne. Avec --warn-below, --job ou --shift-end, elle affiche aussi ce dont « watch » avertirait.</translation>
    </message>
    <message>
        <source>%1: its catalogue can only be played with a supply database of the product itself</source>
        <translation>%1 : son catalogue ne peut être rejoué qu&apos;avec une base de consommables du produit lui-même</translation>
    </message>
    <message>
        <source>lines left out from %1 to %2: %3</source>
        <translation>lignes omises de %1 à %2 : %3</translation>
    </message>
    <message>
        <source>AT THE BEGINNING</source>
        <translation>AU DÉBUT</translation>
    </message>
    <message>
        <source>AT THE END</source>
        <translation>À LA FIN</translation>
    </message>
    <message>
        <source>--language: expected en, de, es, fr, it, ja or zh_CN, found &quot;%1&quot;</source>
        <translation>--language : en, de, es, fr, it, ja ou zh_CN attendu, « %1 » trouvé</translation>
    </message>
    <message>
        <source>cannot write the picture %1</source>
        <translation>impossible d’écrire l’image %1</translation>
    </message>
    <message>
        <source>show the virtual printers that FILE describes, or those of &quot;built-in&quot;</source>
        <translation>afficher les imprimantes virtuelles décrites par FILE, ou celles intégrées (« built-in »)</translation>
    </message>
    <message>
        <source>speed up the virtual printers&apos; story by FACTOR</source>
        <translation>accélérer FACTOR fois le scénario des imprimantes virtuelles</translation>
    </message>
    <message>
        <source>record what is used in FILE, and show it</source>
        <translation>enregistrer la consommation dans FILE et l’afficher</translation>
    </message>
    <message>
        <source>keep the settings of the window in FILE</source>
        <translation>conserver les réglages de la fenêtre dans FILE</translation>
    </message>
    <message>
        <source>start without an open window</source>
        <translation>démarrer sans ouvrir de fenêtre</translation>
    </message>
    <message>
        <source>speak the language TAG: en, de, es, fr, it, ja or zh_CN</source>
        <translation>utiliser la langue TAG : en, de, es, fr, it, ja ou zh_CN</translation>
    </message>
    <message>
        <source>use the colours SCHEME: light, dark or system</source>
        <translation>utiliser les couleurs SCHEME : light (clair), dark (sombre) ou system</translation>
    </message>
    <message>
        <source>open the window in this size</source>
        <translation>ouvrir la fenêtre à cette taille</translation>
    </message>
    <message>
        <source>save a picture of the window in FILE.png and end</source>
        <translation>enregistrer une image de la fenêtre dans FILE.png et terminer</translation>
    </message>
    <message>
        <source>with --screenshot: SECONDS after the start, 3 by default</source>
        <translation>avec --screenshot : SECONDS après le démarrage, 3 par défaut</translation>
    </message>
    <message>
        <source>Shows the label printers of this computer in a window.</source>
        <translation>Affiche dans une fenêtre les imprimantes d’étiquettes de cet ordinateur.</translation>
    </message>
    <message>
        <source>--%1: expected a number above 0 and up to %2, found &quot;%3&quot;</source>
        <translation>--%1 : un nombre supérieur à 0 et jusqu’à %2 attendu, « %3 » trouvé</translation>
    </message>
    <message>
        <source>--size: expected such as 1200x800, found &quot;%1&quot;</source>
        <translation>--size : par exemple 1200x800 attendu, « %1 » trouvé</translation>
    </message>
    <message>
        <source>--%1: expected a value</source>
        <translation>--%1 : une valeur est attendue</translation>
    </message>
    <message>
        <source>expected options only, found &quot;%1&quot;</source>
        <translation>seules des options sont attendues, « %1 » trouvé</translation>
    </message>
    <message>
        <source>--after goes with --screenshot</source>
        <translation>--after va avec --screenshot</translation>
    </message>
    <message>
        <source>--colors: expected light, dark or system, found &quot;%1&quot;</source>
        <translation>--colors : light, dark ou system attendu, « %1 » trouvé</translation>
    </message>
    <message>
        <source>Watches this computer&apos;s label printers and publishes what it sees to a broker and to a monitoring system.</source>
        <translation>Surveille les imprimantes d’étiquettes de cet ordinateur et publie ce qu’il voit auprès d’un broker et pour un système de supervision.</translation>
    </message>
    <message>
        <source>watch and publish until interrupted</source>
        <translation>surveiller et publier jusqu’à interruption</translation>
    </message>
    <message>
        <source>say what is wrong with a configuration</source>
        <translation>dire ce qui ne va pas dans une configuration</translation>
    </message>
    <message>
        <source>install the agent as a Windows service that runs with the configuration</source>
        <translation>installer l’agent comme service Windows qui fonctionne avec la configuration</translation>
    </message>
    <message>
        <source>remove the Windows service</source>
        <translation>supprimer le service Windows</translation>
    </message>
    <message>
        <source>the configuration, a JSON file</source>
        <translation>la configuration, un fichier JSON</translation>
    </message>
    <message>
        <source>use the virtual printers that FILE describes</source>
        <translation>utiliser les imprimantes virtuelles que décrit FILE</translation>
    </message>
    <message>
        <source>play the story of virtual printers FACTOR times as fast</source>
        <translation>jouer l’histoire des imprimantes virtuelles FACTOR fois plus vite</translation>
    </message>
    <message>
        <source>--speed takes a number above 0 and up to 1000</source>
        <translation>--speed attend un nombre supérieur à 0 et d’au plus 1000</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 a besoin d’une valeur</translation>
    </message>
    <message>
        <source>%1 needs --config FILE</source>
        <translation>%1 a besoin de --config FILE</translation>
    </message>
    <message>
        <source>%1 is a valid configuration</source>
        <translation>%1 est une configuration valable</translation>
    </message>
    <message>
        <source>%1 takes no further words</source>
        <translation>%1 n’accepte pas d’autres mots</translation>
    </message>
    <message>
        <source>only Windows has services to install; elsewhere use the unit for systemd, deploy/systemd/vxprintagent.service</source>
        <translation>seul Windows a des services à installer ; ailleurs, utilisez l’unité systemd deploy/systemd/vxprintagent.service</translation>
    </message>
    <message>
        <source>what the Windows service manager starts</source>
        <translation>ce que lance le gestionnaire de services de Windows</translation>
    </message>
    <message>
        <source>%1: Windows allows it to administrators alone; use a console that was started as administrator</source>
        <translation>%1 : Windows ne l’autorise qu’aux administrateurs ; utilisez une console lancée en tant qu’administrateur</translation>
    </message>
    <message>
        <source>%1: %2 (error %3)</source>
        <translation>%1 : %2 (erreur %3)</translation>
    </message>
    <message>
        <source>the service %1 cannot be installed</source>
        <translation>le service %1 ne peut pas être installé</translation>
    </message>
    <message>
        <source>the service %1 cannot be removed</source>
        <translation>le service %1 ne peut pas être supprimé</translation>
    </message>
    <message>
        <source>the rights to %1 are not known</source>
        <translation>les droits sur %1 ne sont pas connus</translation>
    </message>
    <message>
        <source>%1 may be changed by %2, who would get the rights of the service; move it to where only administrators may change it, such as below &quot;C:\Program Files&quot;</source>
        <translation>%1 peut être modifié par %2, qui obtiendrait ainsi les droits du service ; déplacez-le là où seuls les administrateurs peuvent le modifier, par exemple sous « C:\Program Files »</translation>
    </message>
    <message>
        <source>%1 is on a network drive, which a service does not see; copy it to this computer</source>
        <translation>%1 se trouve sur un lecteur réseau, qu’un service ne voit pas ; copiez-le sur cet ordinateur</translation>
    </message>
    <message>
        <source>%1: it does not stop; end vxprintagent.exe in the task manager and try again</source>
        <translation>%1 : il ne s’arrête pas ; terminez vxprintagent.exe dans le gestionnaire des tâches et réessayez</translation>
    </message>
    <message>
        <source>the command &quot;service&quot; is for the service manager; on a console use &quot;vxprintagent run --config FILE&quot;</source>
        <translation>la commande « service » est destinée au gestionnaire de services ; dans une console, utilisez « vxprintagent run --config FILE »</translation>
    </message>
    <message>
        <source>the service manager does not answer</source>
        <translation>le gestionnaire de services ne répond pas</translation>
    </message>
    <message>
        <source>%1: it is installed already; run &quot;vxprintagent uninstall&quot; first</source>
        <translation>%1 : il est déjà installé ; exécutez d’abord « vxprintagent uninstall »</translation>
    </message>
    <message>
        <source>the service %1 is installed and starts with Windows; to start it now: net start %1</source>
        <translation>le service %1 est installé et démarre avec Windows ; pour le démarrer maintenant : net start %1</translation>
    </message>
    <message>
        <source>the service %1 is not installed</source>
        <translation>le service %1 n’est pas installé</translation>
    </message>
    <message>
        <source>%1 yet: another program has it open; close the list of services and the event viewer</source>
        <translation>%1 pour l’instant : un autre programme l’a ouvert ; fermez la liste des services et l’observateur d’événements</translation>
    </message>
    <message>
        <source>%1 does not let this user read what agents publish (%2); ask who runs the broker</source>
        <translation>%1 ne permet pas à cet utilisateur de lire ce que publient les agents (%2) ; demandez à qui gère le courtier</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>plus de %1 octets</translation>
    </message>
    <message>
        <source>a name that is empty or has more than %1 characters</source>
        <translation>un nom vide ou de plus de %1 caractères</translation>
    </message>
    <message>
        <source>expected online or offline</source>
        <translation>attendu : online ou offline</translation>
    </message>
    <message>
        <source>not a JSON object</source>
        <translation>pas un objet JSON</translation>
    </message>
    <message>
        <source>there are more than %1 printers</source>
        <translation>il y a plus de %1 imprimantes</translation>
    </message>
    <message>
        <source>a message cannot be read: %1 (so far: %2)</source>
        <translation>un message ne peut pas être lu : %1 (jusqu’ici : %2)</translation>
    </message>
    <message>
        <source>%1; those beyond are not shown</source>
        <translation>%1 ; ce qui dépasse n’est pas affiché</translation>
    </message>
    <message>
        <source>there are more than %1 agents</source>
        <translation>il y a plus de %1 agents</translation>
    </message>
    <message>
        <source>--%1: expected %2</source>
        <translation>--%1 : attendu : %2</translation>
    </message>
    <message>
        <source>%1 names no broker: name it with --broker, or with &quot;url&quot; in &quot;mqtt&quot;</source>
        <translation>%1 n’indique aucun courtier : indiquez-le avec --broker, ou avec &quot;url&quot; dans &quot;mqtt&quot;</translation>
    </message>
    <message>
        <source>the certificates in %1 have no effect without TLS; expected a URL that begins with mqtts://</source>
        <translation>les certificats de %1 sont sans effet sans TLS ; attendu : une URL qui commence par mqtts://</translation>
    </message>
    <message>
        <source>the password crosses the network readably; use mqtts://</source>
        <translation>le mot de passe traverse le réseau en clair ; utilisez mqtts://</translation>
    </message>
    <message>
        <source>--broker: this build has no MQTT; build it with libmosquitto</source>
        <translation>--broker : ce programme est construit sans MQTT ; construisez-le avec libmosquitto</translation>
    </message>
    <message>
        <source>top: show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>top : affiche ce que les agents publient auprès du courtier à URL, comme mqtts://broker.example/SITE ; sans SITE, tous les sites</translation>
    </message>
    <message>
        <source>top: take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>top : prend le courtier, l’utilisateur et les certificats dans FILE, qui est comme la configuration d’un agent</translation>
    </message>
    <message>
        <source>With --broker or --broker-config, the printers are those of a whole site, as its agents publish them over MQTT. FILE names the user and the file with the password in &quot;mqtt&quot;; a URL has neither.</source>
        <translation>Avec --broker ou --broker-config, les imprimantes sont celles d’un site entier, telles que ses agents les publient par MQTT. FILE indique dans &quot;mqtt&quot; l’utilisateur et le fichier du mot de passe ; une URL n’a ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>No agent since %1</source>
        <translation>Pas d’agent depuis %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent hors connexion</translation>
    </message>
    <message>
        <source>--%1 does not go with --broker</source>
        <translation>--%1 ne va pas avec --broker</translation>
    </message>
    <message>
        <source>no connection since %1</source>
        <translation>aucune connexion depuis %1</translation>
    </message>
    <message>
        <source>no connection</source>
        <translation>aucune connexion</translation>
    </message>
    <message>
        <source>agents offline: %1</source>
        <translation>agents hors connexion : %1</translation>
    </message>
    <message>
        <source>unreadable messages: %1</source>
        <translation>messages illisibles : %1</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
    <message>
        <source>No agent has published a printer yet.</source>
        <translation>Aucun agent n’a encore publié d’imprimante.</translation>
    </message>
    <message>
        <source>No agent of the site &quot;%1&quot; has published a printer yet.</source>
        <translation>Aucun agent du site &quot;%1&quot; n’a encore publié d’imprimante.</translation>
    </message>
    <message>
        <source>show what agents publish on the broker at URL, such as mqtts://broker.example/SITE; without SITE, all sites</source>
        <translation>affiche ce que les agents publient auprès du courtier à URL, comme mqtts://broker.example/SITE ; sans SITE, tous les sites</translation>
    </message>
    <message>
        <source>take the broker, the user and the certificates from FILE, which is like an agent&apos;s configuration</source>
        <translation>prend le courtier, l’utilisateur et les certificats dans FILE, qui est comme la configuration d’un agent</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>ignorés : %1</translation>
    </message>
</context>
</TS>
