<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Disconnected</source>
        <comment>Printer status message</comment>
        <translation>Déconnectée</translation>
    </message>
    <message>
        <source>Ready</source>
        <comment>Printer status message</comment>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Unable To Retrieve Printer Info. (Code 255)</source>
        <comment>Printer status message</comment>
        <translation>Impossible d’obtenir les informations de l’imprimante. (Code 255)</translation>
    </message>
    <message>
        <source>Printer Is Remotely Connected.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>L’imprimante est connectée à distance.
Impossible d’obtenir les informations de l’imprimante.</translation>
    </message>
    <message>
        <source>Printer Is Not Managed.
Unable to retrieve printer info.</source>
        <comment>Printer status message</comment>
        <translation>L’imprimante n’est pas gérée.
Impossible d’obtenir les informations de l’imprimante.</translation>
    </message>
</context>
<context>
    <name>VXError</name>
    <message>
        <source>The printer is disconnected</source>
        <translation>L’imprimante est déconnectée</translation>
    </message>
    <message>
        <source>The printer is ready</source>
        <translation>L’imprimante est prête</translation>
    </message>
    <message>
        <source>The printer is out of labels</source>
        <translation>L’imprimante n’a plus d’étiquettes</translation>
    </message>
    <message>
        <source>The ribbon has run out</source>
        <translation>Le ruban est épuisé</translation>
    </message>
    <message>
        <source>The cover is open</source>
        <translation>Le capot est ouvert</translation>
    </message>
    <message>
        <source>The labels are jammed</source>
        <translation>Bourrage d’étiquettes</translation>
    </message>
    <message>
        <source>The cutter is jammed</source>
        <translation>Le massicot est bloqué</translation>
    </message>
    <message>
        <source>The cutter cover is open</source>
        <translation>Le capot du massicot est ouvert</translation>
    </message>
    <message>
        <source>The print head is too hot</source>
        <translation>La tête d’impression est trop chaude</translation>
    </message>
    <message>
        <source>The print head is not connected</source>
        <translation>La tête d’impression n’est pas connectée</translation>
    </message>
    <message>
        <source>The motor is too hot</source>
        <translation>Le moteur est trop chaud</translation>
    </message>
    <message>
        <source>No labels are loaded</source>
        <translation>Aucune étiquette n’est chargée</translation>
    </message>
    <message>
        <source>No ribbon is loaded</source>
        <translation>Aucun ruban n’est chargé</translation>
    </message>
    <message>
        <source>The labels are not recognized</source>
        <translation>Les étiquettes ne sont pas reconnues</translation>
    </message>
    <message>
        <source>The ribbon is not recognized</source>
        <translation>Le ruban n’est pas reconnu</translation>
    </message>
    <message>
        <source>The ribbon does not suit the labels</source>
        <translation>Le ruban ne convient pas aux étiquettes</translation>
    </message>
    <message>
        <source>The start of the label was not found</source>
        <translation>Le début de l’étiquette n’a pas été trouvé</translation>
    </message>
    <message>
        <source>The ribbon is torn or slack</source>
        <translation>Le ruban est déchiré ou détendu</translation>
    </message>
    <message>
        <source>The label sensor must be calibrated</source>
        <translation>Le capteur d’étiquettes doit être étalonné</translation>
    </message>
    <message>
        <source>The printer is paused</source>
        <translation>L’imprimante est en pause</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>La mémoire de l’imprimante est pleine</translation>
    </message>
    <message>
        <source>The firmware is being updated</source>
        <translation>Le micrologiciel est en cours de mise à jour</translation>
    </message>
    <message>
        <source>The firmware update has failed</source>
        <translation>La mise à jour du micrologiciel a échoué</translation>
    </message>
    <message>
        <source>The battery is low</source>
        <translation>La batterie est faible</translation>
    </message>
    <message>
        <source>The print spooler is not running</source>
        <translation>Le spouleur d’impression n’est pas en cours d’exécution</translation>
    </message>
    <message>
        <source>The printer&apos;s status is not known</source>
        <translation>L’état de l’imprimante n’est pas connu</translation>
    </message>
    <message>
        <source>The printer is reached over a network</source>
        <translation>L’imprimante est connectée via un réseau</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>L’imprimante est hors connexion</translation>
    </message>
    <message>
        <source>The printer is not managed</source>
        <translation>L’imprimante n’est pas gérée</translation>
    </message>
    <message>
        <source>Printer error %1</source>
        <translation>Erreur d’imprimante %1</translation>
    </message>
</context>
</TS>
