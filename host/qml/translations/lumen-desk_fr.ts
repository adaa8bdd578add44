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
</TS>
