<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>VxKit</name>
    <message>
        <source>The print job cannot be followed: %1</source>
        <translation>Le travail d’impression ne peut pas être suivi : %1</translation>
    </message>
    <message>
        <source>The print spooler does not answer: %1</source>
        <translation>Le spouleur d’impression ne répond pas : %1</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>L’imprimante est hors connexion.</translation>
    </message>
    <message>
        <source>The printer is out of labels.</source>
        <translation>L’imprimante n’a plus d’étiquettes.</translation>
    </message>
    <message>
        <source>The printer is in error.</source>
        <translation>L’imprimante est en erreur.</translation>
    </message>
    <message>
        <source>The printer needs attention.</source>
        <translation>L’imprimante requiert une intervention.</translation>
    </message>
    <message>
        <source>The job is paused.</source>
        <translation>Le travail est en pause.</translation>
    </message>
    <message>
        <source>The job is being deleted.</source>
        <translation>Le travail est en cours de suppression.</translation>
    </message>
    <message>
        <source>The driver cannot print the job.</source>
        <translation>Le pilote ne peut pas imprimer le travail.</translation>
    </message>
    <message>
        <source>The printer is paused.</source>
        <translation>L’imprimante est en pause.</translation>
    </message>
    <message>
        <source>Labels are jammed.</source>
        <translation>Des étiquettes sont coincées.</translation>
    </message>
    <message>
        <source>The printer has a problem with its labels.</source>
        <translation>L’imprimante a un problème avec ses étiquettes.</translation>
    </message>
    <message>
        <source>The printer is not available.</source>
        <translation>L’imprimante n’est pas disponible.</translation>
    </message>
    <message>
        <source>The printer is open.</source>
        <translation>L’imprimante est ouverte.</translation>
    </message>
    <message>
        <source>The printer is set to work offline.</source>
        <translation>L’imprimante est réglée pour fonctionner hors connexion.</translation>
    </message>
    <message>
        <source>The command is empty.</source>
        <translation>La commande est vide.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a label printer of a supported model.</source>
        <translation>« %1 » n’est pas une imprimante d’étiquettes d’un modèle pris en charge.</translation>
    </message>
    <message>
        <source>The print spooler took only the first %1 bytes of the command.</source>
        <translation>Le spouleur d’impression n’a accepté que les %1 premiers octets de la commande.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>Impossible d’ouvrir « %1 » : %2</translation>
    </message>
    <message>
        <source>The driver of &quot;%1&quot; cannot be queried: %2</source>
        <translation>Impossible d’interroger le pilote de « %1 » : %2</translation>
    </message>
    <message>
        <source>The command cannot be sent to &quot;%1&quot;: %2</source>
        <translation>Impossible d’envoyer la commande à « %1 » : %2</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>The job waits in the queue.</source>
        <translation>Le travail attend dans la file d’attente.</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>Le travail est en cours d’impression.</translation>
    </message>
    <message>
        <source>The job has been printed.</source>
        <translation>Le travail a été imprimé.</translation>
    </message>
    <message>
        <source>The job was deleted.</source>
        <translation>Le travail a été supprimé.</translation>
    </message>
    <message>
        <source>The job has left the queue; whether it was printed is not known.</source>
        <translation>Le travail a quitté la file d’attente ; on ne sait pas s’il a été imprimé.</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseFile</name>
    <message>
        <source>%1: line %2: %3</source>
        <extracomment>%1 is a file, %2 the number of a line in it, %3 what is wrong.</extracomment>
        <translation>%1 : ligne %2 : %3</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>elle dépasse %1 octets</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>le fichier dépasse %1 octets</translation>
    </message>
    <message>
        <source>the member &quot;kind&quot; is missing</source>
        <translation>le membre « kind » manque</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>ce n&apos;est pas un objet JSON</translation>
    </message>
    <message>
        <source>there is a line behind the end of the case</source>
        <translation>il y a une ligne après la fin du cas</translation>
    </message>
    <message>
        <source>&quot;t&quot; is not a number of seconds since the start</source>
        <translation>« t » n&apos;est pas un nombre de secondes depuis le début</translation>
    </message>
    <message>
        <source>this is not a case file</source>
        <translation>ce n&apos;est pas un fichier de cas</translation>
    </message>
    <message>
        <source>the case file has version %1, but this program reads version %2</source>
        <translation>le fichier de cas a la version %1, mais ce programme lit la version %2</translation>
    </message>
</context>
<context>
    <name>VxKit::CaseRecorder</name>
    <message>
        <source>nothing is kept in memory</source>
        <translation>rien n&apos;est gardé en mémoire</translation>
    </message>
</context>
<context>
    <name>VxKit::Preflight</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>Numbers of labels</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1: nothing is loaded, the job needs %2.</source>
        <extracomment>%1 is a place of the printer, such as &quot;Ribbon 1&quot;. This holds for all texts that begin with it.</extracomment>
        <translation>%1 : rien n’est chargé, la tâche nécessite %2.</translation>
    </message>
    <message>
        <source>%1: %2 is loaded, the job needs %3.</source>
        <translation>%1 : %2 est chargé, la tâche nécessite %3.</translation>
    </message>
    <message>
        <source>The job needs the ribbon %1 as well, but the printer has no place for it.</source>
        <translation>La tâche nécessite aussi le ruban %1, mais l’imprimante n’a pas de place pour lui.</translation>
    </message>
    <message>
        <source>No ribbon is loaded.</source>
        <translation>Aucun ruban n’est chargé.</translation>
    </message>
    <message>
        <source>The ribbon %1 does not suit the supply %2: the catalogue has no print settings for the two.</source>
        <translation>Le ruban %1 ne convient pas au consommable %2 : le catalogue n’a pas de réglages d’impression pour les deux.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: %4.</source>
        <translation>%1 : insuffisant. Étiquettes restantes : %2, nécessaires : %3, manquantes : %4.</translation>
    </message>
    <message>
        <source>%1: not enough. Labels left: %2, needed: %3, missing: at least %4.</source>
        <translation>%1 : insuffisant. Étiquettes restantes : %2, nécessaires : %3, manquantes : au moins %4.</translation>
    </message>
    <message>
        <source>There is no label printer &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’imprimante d’étiquettes « %1 ».</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer is not watched.</source>
        <translation>On ne sait pas ce qui est chargé, car l’imprimante n’est pas surveillée.</translation>
    </message>
    <message>
        <source>It is not known what is loaded, because the printer has not reported anything yet.</source>
        <translation>On ne sait pas ce qui est chargé, car l’imprimante n’a encore rien signalé.</translation>
    </message>
    <message>
        <source>It is not known whether the printer can print, because it has not reported its status.</source>
        <translation>On ne sait pas si l’imprimante peut imprimer, car elle n’a pas signalé son état.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because the printer does not report it.</source>
        <translation>%1 : on ne sait pas ce qui est chargé, car l’imprimante ne le signale pas.</translation>
    </message>
    <message>
        <source>%1: it is not known what is loaded, because %2 is not in the catalogue.</source>
        <translation>%1 : on ne sait pas ce qui est chargé, car %2 est absent du catalogue.</translation>
    </message>
    <message>
        <source>%1: it is not known how much is left.</source>
        <translation>%1 : on ne sait pas ce qu’il en reste.</translation>
    </message>
    <message>
        <source>%1: it is not known whether %2 suits the supply, because the catalogue cannot be read.</source>
        <translation>%1 : on ne sait pas si %2 convient au consommable, car le catalogue ne peut pas être lu.</translation>
    </message>
    <message>
        <source>%1: it is not known how many labels are left, because the catalogue has no length of a label for %2.</source>
        <translation>%1 : on ne sait pas combien d’étiquettes restent, car le catalogue n’a pas de longueur d’étiquette pour %2.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because the printer reports whole percents only. Labels left: %2, needed: %3.</source>
        <translation>%1 : on ne sait pas si cela suffit, car l’imprimante ne signale que des pourcentages entiers. Étiquettes restantes : %2, nécessaires : %3.</translation>
    </message>
    <message>
        <source>%1: it is not known whether it lasts, because a label may take several of its colours. Labels left: %2, needed: %3.</source>
        <translation>%1 : on ne sait pas si cela suffit, car une étiquette peut utiliser plusieurs de ses couleurs. Étiquettes restantes : %2, nécessaires : %3.</translation>
    </message>
    <message>
        <source>The printer is not ready: %1.</source>
        <translation>L’imprimante n’est pas prête : %1.</translation>
    </message>
    <message>
        <source>Ready. Labels left: %1, needed: %2.</source>
        <translation>Prête. Étiquettes restantes : %1, nécessaires : %2.</translation>
    </message>
    <message>
        <source>Ready: what the job needs is loaded.</source>
        <translation>Prête : ce dont la tâche a besoin est chargé.</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterEvent</name>
    <message>
        <source>Ribbon 1: %1</source>
        <translation>Ruban 1 : %1</translation>
    </message>
    <message>
        <source>Ribbon 2: %1</source>
        <translation>Ruban 2 : %1</translation>
    </message>
    <message>
        <source>Supply: %1</source>
        <translation>Consommable : %1</translation>
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
        <source>%1 % left</source>
        <translation>reste %1 %</translation>
    </message>
    <message>
        <source>nothing loaded</source>
        <translation>rien de chargé</translation>
    </message>
    <message>
        <source>not in the catalogue (%1)</source>
        <translation>absent du catalogue (%1)</translation>
    </message>
    <message>
        <source>Firmware update failed, error %1</source>
        <translation>Échec de la mise à jour du micrologiciel, erreur %1</translation>
    </message>
    <message>
        <source>Firmware %1</source>
        <translation>Micrologiciel %1</translation>
    </message>
    <message>
        <source>Firmware %1, was %2</source>
        <translation>Micrologiciel %1, avant %2</translation>
    </message>
    <message>
        <source>Command failed: %1</source>
        <translation>Échec d’une commande : %1</translation>
    </message>
    <message>
        <source>Printer added</source>
        <translation>Imprimante ajoutée</translation>
    </message>
    <message>
        <source>Printer removed</source>
        <translation>Imprimante supprimée</translation>
    </message>
    <message>
        <source>Printer renamed, was %1</source>
        <translation>Imprimante renommée, avant %1</translation>
    </message>
    <message>
        <source>Print spooler stopped, no printer can be read</source>
        <translation>Spouleur d’impression arrêté, aucune imprimante ne peut être lue</translation>
    </message>
    <message>
        <source>Print spooler is running again</source>
        <translation>Le spouleur d’impression fonctionne de nouveau</translation>
    </message>
    <message>
        <source>%1 event is missing since %2, because the log could not be written</source>
        <translation>Il manque %1 événement depuis %2, car le journal n’a pas pu être écrit</translation>
    </message>
    <message>
        <source>%1 events are missing since %2, because the log could not be written</source>
        <translation>Il manque %1 événements depuis %2, car le journal n’a pas pu être écrit</translation>
    </message>
</context>
<context>
    <name>VxKit::PrinterForecasts</name>
    <message>
        <source>%1: few labels left: %2</source>
        <translation>%1 : il reste peu d’étiquettes : %2</translation>
    </message>
    <message>
        <source>%1: not enough for the job. Labels left: %2, needed: %3</source>
        <translation>%1 : insuffisant pour la tâche. Étiquettes restantes : %2, nécessaires : %3</translation>
    </message>
    <message>
        <source>%1: will probably end before the shift does, at %2</source>
        <translation>%1 : sera probablement épuisé avant la fin du poste, à %2</translation>
    </message>
</context>
<context>
    <name>VxKit::Slot</name>
    <message>
        <source>Ribbon 1</source>
        <translation>Ruban 1</translation>
    </message>
    <message>
        <source>Ribbon 2</source>
        <translation>Ruban 2</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Consommable</translation>
    </message>
</context>
<context>
    <name>VxKit::StatusInfo</name>
    <message>
        <source>The printer is switched off, or it is not connected to this computer. Its driver is installed, and no fault has been reported.</source>
        <translation>L’imprimante est éteinte ou n’est pas reliée à cet ordinateur. Son pilote est installé et aucune panne n’a été signalée.</translation>
    </message>
    <message>
        <source>Switch the printer on. Check its power cable and its USB cable at both ends. If it stays disconnected, use another USB port of the computer.</source>
        <translation>Allumez l’imprimante. Vérifiez le câble d’alimentation et le câble USB aux deux extrémités. Si elle reste déconnectée, utilisez un autre port USB de l’ordinateur.</translation>
    </message>
    <message>
        <source>The printer is switched on, is connected and can print.</source>
        <translation>L’imprimante est allumée et connectée, et peut imprimer.</translation>
    </message>
    <message>
        <source>Nothing needs to be done.</source>
        <translation>Aucune action n’est nécessaire.</translation>
    </message>
    <message>
        <source>The labels that were loaded are used up. What has not been printed yet waits in the print queue.</source>
        <translation>Les étiquettes chargées sont épuisées. Ce qui n’est pas encore imprimé attend dans la file d’attente d’impression.</translation>
    </message>
    <message>
        <source>Open the cover, take out the empty core and load a new roll of the same labels. Close the cover; printing continues.</source>
        <translation>Ouvrez le capot, retirez le mandrin vide et chargez un nouveau rouleau des mêmes étiquettes. Fermez le capot ; l’impression reprend.</translation>
    </message>
    <message>
        <source>The ribbon is used up to its end. The labels are not the cause.</source>
        <translation>Le ruban est utilisé jusqu’au bout. Les étiquettes ne sont pas en cause.</translation>
    </message>
    <message>
        <source>Open the cover and take out the used ribbon with both cores. Load a new ribbon of the same kind, pull it tight and close the cover.</source>
        <translation>Ouvrez le capot et retirez le ruban usagé avec ses deux mandrins. Chargez un nouveau ruban du même type, tendez-le et fermez le capot.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open or not latched. For safety the printer does not print with an open cover.</source>
        <translation>Le capot de l’imprimante est ouvert ou mal enclenché. Par sécurité, l’imprimante n’imprime pas avec le capot ouvert.</translation>
    </message>
    <message>
        <source>Close the cover and press it down on both sides until it clicks. If it does not close, check that labels and ribbon are seated correctly.</source>
        <translation>Fermez le capot et appuyez des deux côtés jusqu’au déclic. S’il ne se ferme pas, vérifiez que les étiquettes et le ruban sont bien en place.</translation>
    </message>
    <message>
        <source>The labels do not move through the printer. A label may have stuck to the roller or to the print head.</source>
        <translation>Les étiquettes n’avancent plus dans l’imprimante. Une étiquette est peut-être collée au rouleau ou à la tête d’impression.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cover. Remove stuck labels by hand, without sharp tools. Load the labels again, close the cover and switch the printer on.</source>
        <translation>Éteignez l’imprimante et ouvrez le capot. Retirez à la main les étiquettes collées, sans outil tranchant. Rechargez les étiquettes, fermez le capot et allumez l’imprimante.</translation>
    </message>
    <message>
        <source>The cutter cannot move its blade. Usually a label or its adhesive is stuck between the blades.</source>
        <translation>Le massicot ne peut pas déplacer sa lame. En général, une étiquette ou de la colle est coincée entre les lames.</translation>
    </message>
    <message>
        <source>Switch the printer off and open the cutter cover. Remove what is stuck, without touching the blades. Close the cover and switch the printer on. If the cutter jams again, have it serviced.</source>
        <translation>Éteignez l’imprimante et ouvrez le capot du massicot. Retirez ce qui est coincé sans toucher les lames. Fermez le capot et allumez l’imprimante. Si le massicot se bloque à nouveau, faites-le réviser.</translation>
    </message>
    <message>
        <source>The cover of the cutter is open or not latched. For safety the printer neither cuts nor prints until it is closed.</source>
        <translation>Le capot du massicot est ouvert ou mal enclenché. Par sécurité, l’imprimante ne coupe pas et n’imprime pas tant qu’il n’est pas fermé.</translation>
    </message>
    <message>
        <source>Close the cutter cover until it clicks. If it does not close, switch the printer off and remove label scraps from the cutter.</source>
        <translation>Fermez le capot du massicot jusqu’au déclic. S’il ne se ferme pas, éteignez l’imprimante et retirez les restes d’étiquettes du massicot.</translation>
    </message>
    <message>
        <source>The print head has become too hot and must cool down. This happens with long jobs and dark prints, and is not a defect.</source>
        <translation>La tête d’impression a trop chauffé et doit refroidir. Cela arrive lors de longs travaux ou d’impressions foncées et n’est pas un défaut.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, lower the darkness or the speed and keep the vents clear.</source>
        <translation>Laissez l’imprimante allumée et attendez quelques minutes ; l’impression reprend d’elle-même. Si cela arrive souvent, réduisez le contraste ou la vitesse et dégagez les ouvertures d’aération.</translation>
    </message>
    <message>
        <source>The printer does not detect its print head. The head or its cable may be loose or defective.</source>
        <translation>L’imprimante ne détecte pas sa tête d’impression. La tête ou son câble est peut-être mal fixé ou défectueux.</translation>
    </message>
    <message>
        <source>Switch the printer off, wait ten seconds and switch it on. If the message returns, switch it off, unplug it and have the print head checked by the service.</source>
        <translation>Éteignez l’imprimante, attendez dix secondes et rallumez-la. Si le message réapparaît, éteignez-la, débranchez-la et faites vérifier la tête d’impression par le service après-vente.</translation>
    </message>
    <message>
        <source>The motor has become too hot and must cool down. This happens with long jobs, or when the labels run heavily.</source>
        <translation>Le moteur a trop chauffé et doit refroidir. Cela arrive lors de longs travaux ou quand les étiquettes avancent difficilement.</translation>
    </message>
    <message>
        <source>Leave the printer switched on and wait some minutes; printing continues by itself. If this happens often, check that the roll turns freely.</source>
        <translation>Laissez l’imprimante allumée et attendez quelques minutes ; l’impression reprend d’elle-même. Si cela arrive souvent, vérifiez que le rouleau tourne librement.</translation>
    </message>
    <message>
        <source>There are no labels in the printer, or they do not reach the sensor.</source>
        <translation>Il n’y a pas d’étiquettes dans l’imprimante, ou elles n’atteignent pas le capteur.</translation>
    </message>
    <message>
        <source>Load a roll of labels. Push the start of the labels under the guides as far as the print head, and close the cover.</source>
        <translation>Chargez un rouleau d’étiquettes. Glissez le début sous les guides jusqu’à la tête d’impression et fermez le capot.</translation>
    </message>
    <message>
        <source>There is no ribbon in the printer, but the labels need one.</source>
        <translation>Il n’y a pas de ruban dans l’imprimante, mais les étiquettes en exigent un.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, pull it tight and close the cover.</source>
        <translation>Chargez un ruban adapté aux étiquettes, tendez-le et fermez le capot.</translation>
    </message>
    <message>
        <source>The printer cannot tell which labels are loaded. Their identification cannot be read, or the printer does not know this kind.</source>
        <translation>L’imprimante ne peut pas déterminer quelles étiquettes sont chargées. Leur identification est illisible ou l’imprimante ne connaît pas ce type.</translation>
    </message>
    <message>
        <source>Take the roll out and put it in again the right way round. Clean the place where the printer reads the roll. Try another roll. If new rolls are not recognized either, update the firmware.</source>
        <translation>Retirez le rouleau et remettez-le dans le bon sens. Nettoyez l’endroit où l’imprimante lit le rouleau. Essayez un autre rouleau. Si les rouleaux neufs ne sont pas reconnus non plus, mettez à jour le micrologiciel.</translation>
    </message>
    <message>
        <source>The printer cannot tell which ribbon is loaded. Its identification cannot be read, or the printer does not know this kind.</source>
        <translation>L’imprimante ne peut pas déterminer quel ruban est chargé. Son identification est illisible ou l’imprimante ne connaît pas ce type.</translation>
    </message>
    <message>
        <source>Take the ribbon out and put it in again. Clean the place where the printer reads it. Try another ribbon. If new ribbons are not recognized either, update the firmware.</source>
        <translation>Retirez le ruban et remettez-le en place. Nettoyez l’endroit où l’imprimante le lit. Essayez un autre ruban. Si les rubans neufs ne sont pas reconnus non plus, mettez à jour le micrologiciel.</translation>
    </message>
    <message>
        <source>The ribbon and the labels do not go together. Each of them is in order, but the print would not hold.</source>
        <translation>Le ruban et les étiquettes ne vont pas ensemble. Chacun est en bon état, mais l’impression ne tiendrait pas.</translation>
    </message>
    <message>
        <source>Load a ribbon that suits the labels, or labels that suit the ribbon. The packaging and the supply catalogue name the pairs.</source>
        <translation>Chargez un ruban adapté aux étiquettes, ou des étiquettes adaptées au ruban. L’emballage et le catalogue des consommables indiquent les combinaisons.</translation>
    </message>
    <message>
        <source>The printer does not find where a label begins. The loaded labels differ from those it was set up for, or a mark or gap cannot be seen.</source>
        <translation>L’imprimante ne trouve pas le début d’une étiquette. Les étiquettes chargées ne sont pas celles configurées, ou un repère ou un espace n’est pas visible.</translation>
    </message>
    <message>
        <source>Check that the label roll is straight between the guides. Compare the label size in the print settings with the loaded labels. Clean the label sensor, then calibrate it.</source>
        <translation>Vérifiez que le rouleau d’étiquettes est droit entre les guides. Comparez la taille d’étiquette des paramètres d’impression avec les étiquettes chargées. Nettoyez le capteur d’étiquettes, puis étalonnez-le.</translation>
    </message>
    <message>
        <source>The ribbon is torn, or it is not tight. It need not be used up.</source>
        <translation>Le ruban est déchiré ou n’est pas tendu. Il n’est pas forcément épuisé.</translation>
    </message>
    <message>
        <source>Open the cover. If the ribbon is torn, fix its end to the take-up core with adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close the cover.</source>
        <translation>Ouvrez le capot. Si le ruban est déchiré, fixez son extrémité au mandrin récepteur avec du ruban adhésif. Tournez le mandrin récepteur jusqu’à ce que le ruban soit tendu et lisse. Fermez le capot.</translation>
    </message>
    <message>
        <source>The label sensor must be adjusted to the loaded labels. This is usual after a change of supply and is not a defect.</source>
        <translation>Le capteur d’étiquettes doit être réglé pour les étiquettes chargées. C’est habituel après un changement de consommable et n’est pas un défaut.</translation>
    </message>
    <message>
        <source>Check that the labels lie straight and the cover is closed. Start the calibration at the printer or in its driver settings. Wait until it has fed a few labels and stopped.</source>
        <translation>Vérifiez que les étiquettes sont droites et que le capot est fermé. Lancez l’étalonnage sur l’imprimante ou dans les paramètres de son pilote. Attendez qu’elle ait fait avancer quelques étiquettes et s’arrête.</translation>
    </message>
    <message>
        <source>Somebody has paused the printer at the printer itself. Nothing is broken; jobs wait until it is resumed.</source>
        <translation>Quelqu’un a mis l’imprimante en pause sur l’appareil. Rien n’est en panne ; les travaux attendent la reprise.</translation>
    </message>
    <message>
        <source>Press the pause key at the printer to resume printing.</source>
        <translation>Appuyez sur la touche de pause de l’imprimante pour reprendre l’impression.</translation>
    </message>
    <message>
        <source>The job needs more memory than the printer has free. The memory of this computer is not meant.</source>
        <translation>Le travail demande plus de mémoire que l’imprimante n’en a de libre. Il ne s’agit pas de la mémoire de cet ordinateur.</translation>
    </message>
    <message>
        <source>Delete the job from the print queue. Switch the printer off and on. Print fewer labels at a time, with smaller or fewer pictures.</source>
        <translation>Supprimez le travail de la file d’attente d’impression. Éteignez puis rallumez l’imprimante. Imprimez moins d’étiquettes à la fois, avec des images moins nombreuses ou plus petites.</translation>
    </message>
    <message>
        <source>The printer is installing new firmware and does not print meanwhile. This is not a fault.</source>
        <translation>L’imprimante installe un nouveau micrologiciel et n’imprime pas pendant ce temps. Ce n’est pas une panne.</translation>
    </message>
    <message>
        <source>Wait until the update is complete. Do not switch the printer off and do not unplug it.</source>
        <translation>Attendez la fin de la mise à jour. N’éteignez pas et ne débranchez pas l’imprimante.</translation>
    </message>
    <message>
        <source>The printer could not install the new firmware. It may still work with the old one.</source>
        <translation>L’imprimante n’a pas pu installer le nouveau micrologiciel. Elle fonctionne peut-être encore avec l’ancien.</translation>
    </message>
    <message>
        <source>Switch the printer off and on. Check that the firmware is the right one for this model and start the update again. If it fails again, ask the service for help.</source>
        <translation>Éteignez puis rallumez l’imprimante. Vérifiez que le micrologiciel correspond à ce modèle et relancez la mise à jour. En cas de nouvel échec, contactez le service après-vente.</translation>
    </message>
    <message>
        <source>The printer&apos;s battery is nearly empty. The printer still prints, but will soon switch itself off.</source>
        <translation>La batterie de l’imprimante est presque vide. L’imprimante imprime encore, mais va bientôt s’éteindre.</translation>
    </message>
    <message>
        <source>Connect the printer to its power supply, or change the battery.</source>
        <translation>Branchez l’imprimante sur son alimentation ou changez la batterie.</translation>
    </message>
    <message>
        <source>The Windows service that all printing goes through is stopped, so no printer of this computer can print or be read. The printers themselves are not the cause.</source>
        <translation>Le service Windows par lequel passe toute impression est arrêté : aucune imprimante de cet ordinateur ne peut imprimer ni être lue. Les imprimantes ne sont pas en cause.</translation>
    </message>
    <message>
        <source>As an administrator, open services.msc, select &quot;Print Spooler&quot; and choose Start. The printers are read again a few seconds later. If the service stops again, restart the computer.</source>
        <translation>En tant qu’administrateur, ouvrez services.msc, sélectionnez « Spouleur d’impression » et choisissez Démarrer. Quelques secondes plus tard, les imprimantes sont de nouveau lues. Si le service s’arrête encore, redémarrez l’ordinateur.</translation>
    </message>
    <message>
        <source>The printer has not reported its status yet, or it could not be read. This says nothing about whether the printer can print.</source>
        <translation>L’imprimante n’a pas encore signalé son état, ou celui-ci n’a pas pu être lu. Cela ne dit pas si l’imprimante peut imprimer.</translation>
    </message>
    <message>
        <source>Wait a few seconds. If the status stays unknown, switch the printer off and on, and check that its driver is installed correctly.</source>
        <translation>Attendez quelques secondes. Si l’état reste inconnu, éteignez puis rallumez l’imprimante et vérifiez que son pilote est bien installé.</translation>
    </message>
    <message>
        <source>The printer is reached over a network. It is listed but never watched from this computer. It can print all the same.</source>
        <translation>L’imprimante est accessible par un réseau. Elle figure dans la liste, mais n’est jamais surveillée depuis cet ordinateur. Elle peut néanmoins imprimer.</translation>
    </message>
    <message>
        <source>To see its status and what is loaded, use the computer that the printer is connected to.</source>
        <translation>Pour voir son état et ce qui est chargé, utilisez l’ordinateur auquel l’imprimante est reliée.</translation>
    </message>
    <message>
        <source>Windows lists the printer as offline. It is switched off, disconnected, or set to &quot;Use Printer Offline&quot;; jobs wait in the print queue.</source>
        <translation>Windows indique l’imprimante hors connexion. Elle est éteinte, débranchée ou réglée sur « Utiliser l’imprimante hors connexion » ; les travaux attendent dans la file d’attente.</translation>
    </message>
    <message>
        <source>Switch the printer on and check its cable. Open its print queue and make sure that &quot;Use Printer Offline&quot; is not ticked.</source>
        <translation>Allumez l’imprimante et vérifiez son câble. Ouvrez sa file d’attente d’impression et assurez-vous que « Utiliser l’imprimante hors connexion » n’est pas coché.</translation>
    </message>
    <message>
        <source>The current user may print but may not manage this printer, so its status and what is loaded cannot be read. The printer itself may be in order.</source>
        <translation>L’utilisateur actuel peut imprimer mais pas gérer cette imprimante ; son état et ce qui est chargé ne peuvent donc pas être lus. L’imprimante elle-même peut être en ordre.</translation>
    </message>
    <message>
        <source>Ask an administrator to give your account the right &quot;Manage this printer&quot; (printer properties, Security). Then start this program again.</source>
        <translation>Demandez à un administrateur d’accorder à votre compte le droit « Gestion de cette imprimante » (Propriétés de l’imprimante, Sécurité). Redémarrez ensuite ce programme.</translation>
    </message>
    <message>
        <source>The printer reports the status code %1, for which there is no description. It is connected and reports this itself.</source>
        <translation>L’imprimante signale le code d’état %1, pour lequel il n’existe pas de description. Elle est connectée et le signale elle-même.</translation>
    </message>
    <message>
        <source>Look at the printer&apos;s display and its manual. Switch the printer off and on. If the code returns, give the number %1 and the printer&apos;s model to the service.</source>
        <translation>Consultez l’écran de l’imprimante et son manuel. Éteignez puis rallumez l’imprimante. Si le code réapparaît, indiquez au service après-vente le numéro %1 et le modèle de l’imprimante.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>information</source>
        <translation>information</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>Agent offline</source>
        <translation>Agent hors connexion</translation>
    </message>
    <message>
        <source>Nothing is heard from the agent on the printer&apos;s computer. What is loaded is shown as it was last reported.</source>
        <translation>L’agent sur l’ordinateur de l’imprimante ne donne plus de nouvelles. Ce qui est chargé est affiché tel que signalé en dernier.</translation>
    </message>
    <message>
        <source>Check that the computer is switched on and connected to the network, and that vxprintagent is running there.</source>
        <translation>Vérifiez que l’ordinateur est allumé et connecté au réseau, et que vxprintagent y fonctionne.</translation>
    </message>
</context>
<context>
    <name>VxKit::SupplyCatalogue</name>
    <message>
        <source>%1 %2</source>
        <extracomment>The name of a supply or ribbon for people. %1 is its colour or colours, such as &quot;Yellow&quot; or &quot;Black/Red&quot;, %2 its material, such as &quot;Vinyl&quot;.</extracomment>
        <translation>%2 %1</translation>
    </message>
</context>
<context>
    <name>VxKit::UsageHistory</name>
    <message>
        <source>%1: not an SQLite database</source>
        <translation>%1 : n’est pas une base de données SQLite</translation>
    </message>
    <message>
        <source>%1: not a file</source>
        <translation>%1 : n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1: larger than 1 GiB</source>
        <translation>%1 : plus de 1 Gio</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1 : ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>%1: not yet in the format of this version</source>
        <translation>%1 : pas encore au format de cette version</translation>
    </message>
    <message>
        <source>%1: a database of another program</source>
        <translation>%1 : base de données d’un autre programme</translation>
    </message>
    <message>
        <source>%1: written by a newer version (its format is %2; this version knows formats up to %3)</source>
        <translation>%1 : écrit par une version plus récente (format %2 ; cette version connaît les formats jusqu’à %3)</translation>
    </message>
    <message>
        <source>%1: not the tables of a history</source>
        <translation>%1 : ses tables ne sont pas celles d’un historique</translation>
    </message>
    <message>
        <source>another program is using it</source>
        <translation>un autre programme l’utilise</translation>
    </message>
    <message>
        <source>%1: another program is writing to it</source>
        <translation>%1 : un autre programme y écrit</translation>
    </message>
    <message>
        <source>%1: another program has been reading it for too long</source>
        <translation>%1 : un autre programme le lit depuis trop longtemps</translation>
    </message>
</context>
</TS>
