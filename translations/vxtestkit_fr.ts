<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>vxtestkit</name>
    <message>
        <source>Runs the tests of VxPrinterStatus on this computer and writes a report about them.</source>
        <translation>Exécute les tests de VxPrinterStatus sur cet ordinateur et en écrit un rapport.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Runs the tests without asking.</source>
        <translation>Exécute les tests sans poser de question.</translation>
    </message>
    <message>
        <source>Allows tests to stop and start the print spooler, without asking.</source>
        <translation>Permet aux tests, sans poser de question, d’arrêter et de démarrer le spouleur d’impression.</translation>
    </message>
    <message>
        <source>Leaves out the tests that stop the print spooler, without asking.</source>
        <translation>Laisse de côté, sans poser de question, les tests qui arrêtent le spouleur d’impression.</translation>
    </message>
    <message>
        <source>Leaves out the tests that need an administrator&apos;s rights.</source>
        <translation>Laisse de côté les tests qui demandent des droits d’administrateur.</translation>
    </message>
    <message>
        <source>Runs only the tests whose names match this regular expression.</source>
        <translation>N’exécute que les tests dont le nom correspond à cette expression régulière.</translation>
    </message>
    <message>
        <source>Ends a test that prints nothing for so many seconds (180).</source>
        <translation>Met fin à un test qui n’affiche rien pendant ce nombre de secondes (180).</translation>
    </message>
    <message>
        <source>Writes the report into this folder.</source>
        <translation>Écrit le rapport dans ce dossier.</translation>
    </message>
    <message>
        <source>Speaks this language: de, en, es, fr, it, ja or zh.</source>
        <translation>Parle cette langue : de, en, es, fr, it, ja ou zh.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argument inattendu « %1 »</translation>
    </message>
    <message>
        <source>--allow-spooler-stop and --no-spooler-stop contradict each other</source>
        <translation>--allow-spooler-stop et --no-spooler-stop se contredisent</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular expression: %2</source>
        <translation>« %1 » n’est pas une expression régulière : %2</translation>
    </message>
    <message>
        <source>--silence: expected a number of seconds from 1 to %1, found &quot;%2&quot;</source>
        <translation>--silence : un nombre de secondes de 1 à %1 est attendu, « %2 » a été trouvé</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>réussi</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>ÉCHEC</translation>
    </message>
    <message>
        <source>CRASHED</source>
        <translation>PLANTÉ</translation>
    </message>
    <message>
        <source>HANGS, was ended</source>
        <translation>NE RÉPOND PLUS, arrêté</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>ignoré</translation>
    </message>
    <message>
        <source>not run</source>
        <translation>non exécuté</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>An earlier run did not end by itself. What it has left behind is removed now.</source>
        <translation>Une exécution précédente ne s’est pas terminée d’elle-même. Ce qu’elle a laissé est maintenant supprimé.</translation>
    </message>
    <message>
        <source>%1 cannot be read, so it is not known what there was before that run. Remove the file if its printers are gone.</source>
        <translation>%1 ne peut pas être lu, on ne sait donc pas ce qu’il y avait avant cette exécution. Supprimez le fichier si ses imprimantes ont disparu.</translation>
    </message>
    <message>
        <source>Tests of VxPrinterStatus %1</source>
        <translation>Tests de VxPrinterStatus %1</translation>
    </message>
    <message>
        <source>This program runs the tests of VxPrinterStatus on this computer. It adds printers, drivers and ports of its own names, but prints nothing on your printers. It writes keys of its own into the registry, adds a service of its own, and shows windows that come and go. It removes all of this again. For a moment, one of its printers is the default printer.</source>
        <translation>Ce programme exécute les tests de VxPrinterStatus sur cet ordinateur. Il ajoute des imprimantes, des pilotes et des ports portant ses propres noms, mais n’imprime rien sur vos imprimantes. Il écrit ses propres clés dans le Registre, ajoute son propre service et affiche des fenêtres qui apparaissent et disparaissent. Il supprime ensuite tout cela. Pendant un moment, une de ses imprimantes est l’imprimante par défaut.</translation>
    </message>
    <message>
        <source>It leaves one file, a report, which you can read before you send it. Names of people, computers and your printers are not in it. Nothing is sent by itself.</source>
        <translation>Il laisse un fichier, un rapport, que vous pouvez lire avant de l’envoyer. Les noms des personnes, des ordinateurs et de vos imprimantes n’y figurent pas. Rien n’est envoyé automatiquement.</translation>
    </message>
    <message>
        <source>It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then removes what it has added.</source>
        <translation>Cela dure de 10 à 30 minutes. Ctrl+C y met fin à tout moment ; ce qui a été ajouté est alors supprimé.</translation>
    </message>
    <message>
        <source>It does not have an administrator&apos;s rights, so %1 of %2 tests cannot run. To run all, answer no, then right-click run-tests.cmd and choose &quot;Run as administrator&quot;.</source>
        <translation>Il n’a pas les droits d’administrateur, donc %1 tests sur %2 ne peuvent pas être exécutés. Pour les exécuter tous, répondez non, puis cliquez avec le bouton droit sur run-tests.cmd et choisissez « Exécuter en tant qu’administrateur ».</translation>
    </message>
    <message>
        <source>Windows is not in English here. Some tests compare English texts, and may fail for that reason alone. The report says so.</source>
        <translation>Windows n’est pas en anglais ici. Certains tests comparent des textes anglais et peuvent échouer pour cette seule raison. Le rapport l’indique.</translation>
    </message>
    <message>
        <source>Run the tests?</source>
        <translation>Exécuter les tests ?</translation>
    </message>
    <message>
        <source>Some tests stop the print spooler for some seconds and start it again. In that time nobody can print with this computer, and jobs wait. Without them, the other tests run.</source>
        <translation>Certains tests arrêtent le spouleur d’impression quelques secondes et le redémarrent. Pendant ce temps, personne ne peut imprimer avec cet ordinateur, et les travaux attendent. Sans eux, les autres tests sont exécutés.</translation>
    </message>
    <message>
        <source>May they stop the print spooler?</source>
        <translation>Peuvent-ils arrêter le spouleur d’impression ?</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 skipped, %4 not run</source>
        <translation>%1 réussis, %2 en échec, %3 ignorés, %4 non exécutés</translation>
    </message>
    <message>
        <source>Not as it was before:</source>
        <translation>N’est pas comme avant :</translation>
    </message>
    <message>
        <source>Please send back this file:</source>
        <translation>Veuillez renvoyer ce fichier :</translation>
    </message>
    <message>
        <source>The tests are already running on this computer.</source>
        <translation>Les tests sont déjà en cours sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Press Enter to close.</source>
        <translation>Appuyez sur Entrée pour fermer.</translation>
    </message>
    <message>
        <source>[y/n]</source>
        <comment>the first letters of yes and no</comment>
        <translation>[o/n]</translation>
    </message>
    <message>
        <source>Removed: %1. Could not be removed: %2.</source>
        <translation>Supprimés : %1. N’ont pas pu être supprimés : %2.</translation>
    </message>
    <message>
        <source>%1: the test &quot;%2&quot; has no program in this folder</source>
        <translation>%1 : le test « %2 » n’a pas de programme dans ce dossier</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>%1 lists no tests</source>
        <translation>%1 n’énumère aucun test</translation>
    </message>
</context>
</TS>
