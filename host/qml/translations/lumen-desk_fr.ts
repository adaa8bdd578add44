<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Version %1 · Licence Apache 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Licence Apache 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Vous donne le contrôle de vos moniteurs.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Afficher l’introduction</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Mentions open source</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Vignettes</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Vignettes larges</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Avancer %1</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Reculer %1</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Rétablir l’ordre d’origine</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Organiser</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Choisissez ce que la fenêtre affiche et dans quel ordre.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Aucun moniteur n’est branché.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Le rapport contient ce qui est affiché ici et le journal des bus. Numéros de série, nom et dossiers en sont exclus.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Exporter le rapport</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Tout est masqué</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Recherche de moniteurs…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Aucun moniteur pris en charge</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Réaffichez ce qu’il vous faut ; rien n’est perdu.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Un instant…</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Branchez-en un : il apparaîtra ici.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Organiser</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Le moniteur est allumé et branché directement en USB-C, DisplayPort ou HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI est activé dans le menu du moniteur.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Ce compte peut utiliser les périphériques I2C : installez la règle ou rejoignez le groupe « i2c », puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Chercher à nouveau</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Essayer avec un moniteur simulé</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Comme le bureau</translation>
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
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Démarrer à la connexion</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Horaires et raccourcis fonctionnent dès la connexion.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Continuer après la fermeture de la fenêtre</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>L’icône de la zone de notification rappelle la fenêtre.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Relancer Lumen Desk rappelle la fenêtre.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Rétablir mes réglages au démarrage</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Les moniteurs reprennent les valeurs de la dernière session. Désactivé, ils gardent les leurs.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Définir une action</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Ce flow possède toutes les actions du moniteur.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Intégré</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>N° de série %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferts</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Nouvelles tentatives</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Attentes apprises</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Écritures du jour</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Disjoncteur</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>en veille</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>ne répond pas</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>répond</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>intégré</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulé</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>fermé</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>impossible à distinguer de celui d’un moniteur identique</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>impossible de créer le dossier</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Le rapport n’a pas pu être écrit dans %1 : %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>pas de réponse</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>réponse vide</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>somme de contrôle erronée</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>code non pris en charge</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>réponse mal formée</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>bus occupé</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>pas d’accès au bus</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>moniteur disparu</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>refusé après trop d’écritures</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>écran en veille</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms avant une réponse</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms après une écriture</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>ouvert pour %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>fermé ; ouvertures : %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Ce nom existe déjà.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Night Hours Protection</source>
        <translation>Night Hours Protection</translation>
    </message>
    <message>
        <source>EcoPrivacy</source>
        <translation>EcoPrivacy</translation>
    </message>
    <message>
        <source>Visual Optimizer</source>
        <translation>Visual Optimizer</translation>
    </message>
    <message>
        <source>A.B.+ Gen2</source>
        <translation>A.B.+ Gen2</translation>
    </message>
    <message>
        <source>Low Blue Light</source>
        <translation>Low Blue Light</translation>
    </message>
    <message>
        <source>A.B. Gen2</source>
        <translation>A.B. Gen2</translation>
    </message>
    <message>
        <source>BackGlow</source>
        <translation>BackGlow</translation>
    </message>
    <message>
        <source>Open applications</source>
        <translation>Ouvrir des applications</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Ajouter un flow</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Renommer le flow</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Veuillez patienter…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Horaire</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, heure</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minute</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Se termine le lendemain.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Le début et la fin sont identiques.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répéter</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 n’est pas disponible dans le mode couleur actuel.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Lumen Desk</source>
        <translation>Lumen Desk</translation>
    </message>
</context>
<context>
    <name>MonitorSwitcher</name>
    <message>
        <source>Monitor</source>
        <translation>Moniteur</translation>
    </message>
</context>
<context>
    <name>OsdTranslator</name>
    <message>
        <source>5000 K</source>
        <translation>5000 K</translation>
    </message>
    <message>
        <source>6500 K</source>
        <translation>6500 K</translation>
    </message>
    <message>
        <source>9300 K</source>
        <translation>9300 K</translation>
    </message>
    <message>
        <source>DCI</source>
        <translation>DCI</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Natif</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialogue</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinéma</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Deux ordinateurs</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Afficher Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Bienvenue dans Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Essayer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Choisissez ce que la fenêtre affiche et dans quel ordre.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Les éléments s’organisent avec un moniteur pris en charge branché.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Cette session ne laisse pas les programmes changer la résolution.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Cette session ne laisse pas les programmes pivoter l'image.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Cette session ne laisse pas les programmes changer l'échelle.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Cette session ne transmet aucune touche aux programmes quand une autre fenêtre est au premier plan : les raccourcis ne fonctionnent que dans les fenêtres de Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Cette session n'indique pas quelle application est au premier plan.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Cette session ne laisse pas les programmes déplacer les fenêtres d'autres applications.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Cette session ne laisse pas les programmes actionner les touches copier et coller : le second presse-papiers ne fonctionne pas.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Cette session n'indique pas où est le pointeur : le clavier et la souris ne changent pas au bord de l'écran.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Aucune sortie audio trouvée : le volume du système et le choix de la sortie ont besoin de PulseAudio ou PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Ce bureau n'a pas de compositeur : l'image ne peut pas être assombrie au-delà de la luminosité du moniteur.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Cette session ne garde aucune fenêtre au-dessus de toutes les autres : ce qui passe ensuite devant peut ne pas être assombri.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Il n'y a pas de session de bureau.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>Dans une session X11, cela fonctionne.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Pas d’autorisation pour utiliser %1 : son moniteur ne peut pas être commandé. Votre compte est déjà dans le groupe %2 : fermez votre session et reconnectez-vous.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Pas d’autorisation pour utiliser %1 : son moniteur ne peut pas être commandé. La règle udev %2 de ce programme n’est pas installée : installez-la dans %3 et redémarrez l’ordinateur.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Pas d’autorisation pour utiliser %1 : son moniteur ne peut pas être commandé. La règle udev %2 de ce programme n’est pas installée : installez-la dans %3 et redémarrez l’ordinateur, ou ajoutez votre compte au groupe %4 et reconnectez-vous.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Pas d’autorisation pour utiliser %1 : son moniteur ne peut pas être commandé. La règle udev est installée, mais cette session n’a pas de poste sur cet ordinateur : ajoutez votre compte au groupe %2 et reconnectez-vous.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Pas d’autorisation pour utiliser %1 : son moniteur ne peut pas être commandé. La règle udev est installée mais pas en vigueur : exécutez "udevadm trigger --subsystem-match=i2c-dev" en tant que root ou redémarrez l’ordinateur.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Le système ne présente aucun fichier de périphérique I2C : les moniteurs externes ne peuvent pas être commandés. Chargez le module du noyau i2c-dev : exécutez "modprobe i2c-dev" en tant que root, ou installez modules-load.d/lumen-desk.conf de ce programme et redémarrez l’ordinateur.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 mène maintenant à un autre moniteur ; rien ne lui a été envoyé.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Deux ordinateurs</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Deux ordinateurs qui partagent un moniteur peuvent se passer le clavier et la souris au bord de l'écran. Connectés, ils savent lequel a le pointeur, et celui-ci entre là où il est sorti.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Connexion à un second ordinateur</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Seul l'ordinateur que vous associez peut se connecter, de façon chiffrée, sur votre réseau local. Il apprend où est le pointeur : ni touches, ni textes, ni fichiers ne sont envoyés. Tant qu'elle est active, le réseau voit le nom de cet ordinateur.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Il n'a pas d'adresse sur un réseau local.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Ordinateur associé</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Associer à nouveau</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Associer un ordinateur</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Ordinateur sans nom</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Vu en dernier à %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Non associé là-bas</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Il répond, mais ne connaît plus cet ordinateur. Associez à nouveau les deux.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Il est retrouvé tout seul dès qu'il fonctionne sur le même réseau. S'il a une autre adresse, vous pouvez la saisir ici.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Autre adresse</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Oublier %1 ?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Les deux ne se connectent plus tant qu'ils ne sont pas associés à nouveau.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Sur un ordinateur</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Il attend un appel pendant deux minutes.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Attendre l'autre ordinateur</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Sur l'autre ordinateur</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Saisissez l'adresse de l'ordinateur qui attend. Là où le service Avahi fonctionne, il est trouvé tout seul.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Choisissez l'ordinateur qui attend ou saisissez son adresse.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Aucun ordinateur proche n'a activé ceci. Vous pouvez aussi saisir son adresse.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Associer</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Associer avec %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Adresse de l'autre ordinateur</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>En attente de l'autre ordinateur</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Appel de l'autre ordinateur</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Confirmez maintenant le code sur l'autre ordinateur</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1 affiche-t-il le même code ?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>L'autre ordinateur affiche-t-il le même code ?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Choisissez-y cet ordinateur ou saisissez son adresse : %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Si les codes diffèrent, quelqu'un s'est glissé entre les deux : répondez non.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Oui, associer</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Service de localisation du système</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue est interrogé sur votre ville, sans plus de précision. Pour la trouver, il peut envoyer à un service sur Internet les réseaux qui vous entourent. Sans réponse, la ville du fuseau horaire est utilisée.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Ville du fuseau horaire</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Personne n'est interrogé.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Votre fuseau horaire n'a pas de ville.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Un lieu de mon choix</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Personne n'est interrogé.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Rien ne suit le soleil. Les heures que vous réglez vous-même restent valables.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Les fonctions qui suivent le lever et le coucher du soleil doivent savoir à peu près où vous êtes. Rien d'autre ne l'utilise.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Position utilisée</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Elle est envoyée, arrondie au centième de degré, à %1 pour les heures de lever et de coucher du soleil.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Les heures de lever et de coucher du soleil sont calculées sur cet ordinateur. La position n'est envoyée à personne.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Lieu choisi : %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Lieu choisi</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Parmi les villes qui nomment un fuseau horaire. Elles sont connues ici : rien n'est envoyé.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Degrés au nord de l'équateur. Le sud est négatif.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Degrés à l'est de Greenwich. L'ouest est négatif.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Une latitude est un nombre de -90 à 90, une longitude de -180 à 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>La connexion n'a pas pu être activée : %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Ce n'est ni une adresse, comme 192.168.1.7, ni le nom d'un ordinateur.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Seul un ordinateur de votre réseau local peut être associé.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Aucun autre ordinateur n'a appelé en deux minutes.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Le code n'a pas été confirmé sur les deux ordinateurs en deux minutes.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Aucun Lumen Desk ne répond là-bas. Les deux ordinateurs sont-ils sur le même réseau, la connexion y est-elle activée, et un pare-feu la laisse-t-il passer ?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>L'autre ordinateur n'attend pas. Choisissez-y d'abord « Attendre l'autre ordinateur ».</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>L'autre ordinateur n'a pas confirmé le code.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>L'appelant ne respecte pas les règles. Rien n'a été associé.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Aucun ordinateur de ce nom n'a été trouvé.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>%1° S</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>%1° N</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>%1° O</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° E</translation>
    </message>
</context>
</TS>
