<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>VxKit::LevelBar</name>
    <message>
        <source>nothing loaded</source>
        <translation>rien de chargé</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non connu</translation>
    </message>
    <message>
        <source>about %1 %</source>
        <translation>environ %1 %</translation>
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
        <source>, </source>
        <comment>between two amounts</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not in the catalogue</source>
        <translation>absent du catalogue</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>absent du catalogue (%1)</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Consommable</translation>
    </message>
    <message>
        <source>Ribbon 1</source>
        <translation>Ruban 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Ruban 2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>VxKit::LevelPlot</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a percentage and a length</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Will probably be used up %1, between %2 and %3</source>
        <translation>Sera probablement épuisé : %1, entre %2 et %3</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non connu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterDetails</name>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rouleau</translation>
    </message>
    <message>
        <source>Offline since printers were looked for. Switch it on, then look for printers again.</source>
        <translation>Hors connexion depuis la recherche d&apos;imprimantes. Allumez-la, puis relancez la recherche.</translation>
    </message>
    <message>
        <source>A network printer, which cannot be watched.</source>
        <translation>Une imprimante réseau, qui ne peut pas être surveillée.</translation>
    </message>
    <message>
        <source>You may not administer this printer, so it cannot be watched.</source>
        <translation>Vous n&apos;avez pas le droit de gérer cette imprimante, qui ne peut donc pas être surveillée.</translation>
    </message>
    <message>
        <source>New. Look for printers to watch it.</source>
        <translation>Nouvelle. Recherchez les imprimantes pour la surveiller.</translation>
    </message>
    <message>
        <source>Removed and added again. Restart the program to watch it.</source>
        <translation>Supprimée puis ajoutée de nouveau. Redémarrez le programme pour la surveiller.</translation>
    </message>
    <message>
        <source>Removed on %1</source>
        <translation>Supprimée le %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimée</translation>
    </message>
    <message>
        <source>Status code</source>
        <translation>Code d&apos;état</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilote</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Boot loader</source>
        <translation>Chargeur d&apos;amorçage</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Progression de la mise à jour</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Erreur de la mise à jour</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>%1, identifier</source>
        <translation>%1, identifiant</translation>
    </message>
    <message>
        <source>%1, mileage in percent</source>
        <translation>%1, reste en pour cent</translation>
    </message>
    <message>
        <source>%1, mileage in millimetres</source>
        <translation>%1, reste en millimètres</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Dernier rapport</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non connu</translation>
    </message>
    <message>
        <source>The last 24 hours</source>
        <translation>Les dernières 24 heures</translation>
    </message>
    <message>
        <source>The last seven days</source>
        <translation>Les sept derniers jours</translation>
    </message>
    <message>
        <source>Since this roll or ribbon was loaded</source>
        <translation>Depuis le chargement de ce rouleau ou ruban</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>Derniers événements</translation>
    </message>
    <message>
        <source>What the driver reports</source>
        <translation>Ce que signale le pilote</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Mise à jour du micrologiciel</translation>
    </message>
    <message>
        <source>Choose a printer to see everything about it.</source>
        <translation>Choisissez une imprimante pour tout savoir sur elle.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;.</source>
        <translation>Il n&apos;existe aucune imprimante « %1 ».</translation>
    </message>
    <message>
        <source>Firmware update: %p %</source>
        <translation>Mise à jour du micrologiciel : %p %</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Échec de la mise à jour du micrologiciel, erreur %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a name and its value</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <comment>a time and what happened then</comment>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a severity and what happened</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>Il ne s&apos;est encore rien passé.</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>L&apos;historique ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Imprimante active</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>En ligne</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors connexion</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a reason and an explanation</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterListView</name>
    <message>
        <source>Print a &amp;test label…</source>
        <translation>Imprimer une étiquette de &amp;test…</translation>
    </message>
    <message>
        <source>Open the print &amp;queue</source>
        <translation>Ouvrir la &amp;file d’attente d’impression</translation>
    </message>
    <message>
        <source>&amp;Doctor…</source>
        <translation>&amp;Diagnostic…</translation>
    </message>
    <message>
        <source>&amp;Save a case for support…</source>
        <translation>&amp;Enregistrer un cas pour l’assistance…</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Filter the printers</source>
        <translation>Filtrer les imprimantes</translation>
    </message>
    <message>
        <source>Words of a name, model, driver, port, serial number, status or supply</source>
        <translation>Mots du nom, du modèle, du pilote, du port, du numéro de série, de l’état ou du consommable</translation>
    </message>
    <message>
        <source>Worst first</source>
        <translation>Les pires d’abord</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Par nom</translation>
    </message>
    <message>
        <source>Order of the printers</source>
        <translation>Ordre des imprimantes</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>No printer fits the filter. Press Escape to show all.</source>
        <translation>Aucune imprimante ne correspond au filtre. Échap les affiche toutes.</translation>
    </message>
    <message>
        <source>&amp;Copy details</source>
        <translation>&amp;Copier les détails</translation>
    </message>
</context>
<context>
    <name>VxKit::ReadingTexts</name>
    <message>
        <source>Not known</source>
        <translation>Non connu</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>Supprimée %1</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimée</translation>
    </message>
    <message>
        <source>Network printer, not watched</source>
        <translation>Imprimante réseau, non surveillée</translation>
    </message>
    <message>
        <source>Not watched: you may not manage it</source>
        <translation>Non surveillée : vous ne pouvez pas la gérer</translation>
    </message>
    <message>
        <source>Not watched yet</source>
        <translation>Pas encore surveillée</translation>
    </message>
    <message>
        <source>Replaced: watched again after a restart</source>
        <translation>Remplacée : surveillée après un redémarrage</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors connexion</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>il y a %1 min</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>il y a %1 h</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>Pas encore de rapport</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <extracomment>%1 is such as &quot;5 min ago&quot;</extracomment>
        <translation>Dernier rapport : %1</translation>
    </message>
    <message>
        <source>active printer</source>
        <translation>imprimante active</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 is a status, %2 is such as &quot;error&quot;</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 is a sentence without its full stop</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>This is the active printer.</source>
        <translation>C’est l’imprimante active.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>Pilote</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>%1 (%2, code %3)</source>
        <translation>%1 (%2, code %3)</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explication</translation>
    </message>
    <message>
        <source>Remedy</source>
        <translation>Que faire</translation>
    </message>
    <message>
        <source>Last report</source>
        <translation>Dernier rapport</translation>
    </message>
    <message>
        <source>Agent offline since %1</source>
        <extracomment>the agent on the printer&apos;s computer</extracomment>
        <translation>Agent hors connexion depuis %1</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent hors connexion</translation>
    </message>
    <message>
        <source>As it was at %1</source>
        <extracomment>the values are old</extracomment>
        <translation>État à %1</translation>
    </message>
</context>
<context>
    <name>VxKit::SlotSection</name>
    <message>
        <source>%1 days</source>
        <translation>%1 jours</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 heures</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a slot and what is in it</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a percentage and amounts</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Will probably be used up in %1 (%2 to %3)</source>
        <translation>Sera probablement épuisé dans %1 (%2 à %3)</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusIcon</name>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimée</translation>
    </message>
    <message>
        <source>Active printer</source>
        <translation>Imprimante active</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Valeur ancienne</translation>
    </message>
    <message>
        <source>Firmware update</source>
        <translation>Mise à jour du micrologiciel</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Consommable</translation>
    </message>
    <message>
        <source>Ribbon</source>
        <translation>Ruban</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Print spooler stopped</source>
        <translation>Spouleur d&apos;impression arrêté</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Aucune autorisation</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Notices muted</source>
        <translation>Notifications désactivées</translation>
    </message>
</context>
</TS>
