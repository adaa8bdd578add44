<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Version %1 · Apache-Lizenz 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache-Lizenz 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Gibt Ihnen die Kontrolle über Ihre Monitore.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Einführung anzeigen</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Open-Source-Hinweise</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Breite Kacheln</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Ganz unten</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>%1 nach vorn</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>%1 nach hinten</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Ursprüngliche Reihenfolge</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Wählen Sie, was das Fenster zeigt und in welcher Reihenfolge.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Es ist kein Monitor angeschlossen.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Der Bericht enthält das hier Gezeigte und das Protokoll der Monitorbusse. Seriennummern, Ihr Name und Ihre Ordner bleiben weg.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Bericht exportieren</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Geschrieben nach %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Alles ist ausgeblendet</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Monitore werden gesucht…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Kein unterstützter Monitor gefunden</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Holen Sie zurück, was Sie brauchen; nichts ging verloren.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Das dauert einen Moment.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Schließen Sie einen an; er erscheint hier von selbst.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Der Monitor ist eingeschaltet und direkt über USB-C, DisplayPort oder HDMI angeschlossen.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI ist im Menü des Monitors eingeschaltet.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Dieses Konto darf die I2C-Geräte benutzen: Geräteregel installieren oder der Gruppe „i2c“ beitreten und neu anmelden.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Mit einem simulierten Monitor ausprobieren</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Zeitpläne und Tastenkürzel wirken, sobald Sie angemeldet sind.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Nach dem Schließen weiterlaufen</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Das Symbol in der Leiste holt das Fenster zurück.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Ein neuer Start von Lumen Desk holt das Fenster zurück.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Meine Einstellungen beim Start wiederherstellen</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Monitore erhalten die Werte der letzten Sitzung. Ausgeschaltet behalten sie die eigenen.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Aktion festlegen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Dieser Flow hat alle Aktionen, die der Monitor bietet.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Eingebaut</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>S/N %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Übertragungen</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Gelernte Wartezeiten</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Schreibvorgänge heute</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Schutzschalter</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>schläft</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>antwortet</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>eingebaut</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simuliert</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>nicht von dem eines gleichen Monitors zu unterscheiden</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Der Bericht konnte nicht nach %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>leere Antwort</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>falsche Prüfsumme</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>nicht unterstützter Code</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>fehlerhafte Antwort</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>Bus beschäftigt</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>kein Zugriff auf den Bus</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>Monitor verschwunden</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>nach zu vielen Schreibvorgängen verweigert</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>Bildschirm schläft</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms vor einer Antwort</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms nach einem Schreibvorgang</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>offen für %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>geschlossen; geöffnet: %1 Mal</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 an %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Diesen Namen gibt es schon.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Farbmodus</translation>
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
        <translation>Anwendungen öffnen</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Flow hinzufügen</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Flow umbenennen</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Bitte warten…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, Stunde</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, Minute</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Endet am nächsten Tag.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Beginn und Ende sind gleich.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
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
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 ist im aktuellen Farbmodus nicht verfügbar.</translation>
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
        <translation>Monitor</translation>
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
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Nativ</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Lumen Desk anzeigen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Willkommen bei Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Wählen Sie, was das Fenster zeigt und in welcher Reihenfolge.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Elemente lassen sich anordnen, solange ein unterstützter Monitor angeschlossen ist.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Diese Sitzung lässt Programme die Auflösung nicht ändern.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Diese Sitzung lässt Programme das Bild nicht drehen.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Diese Sitzung lässt Programme die Skalierung nicht ändern.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Diese Sitzung gibt Programmen keine Tasten, solange ein anderes Fenster vorn ist: Tastenkürzel wirken nur in den Fenstern von Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Diese Sitzung verrät nicht, welche Anwendung vorn ist.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Diese Sitzung lässt Programme die Fenster anderer Anwendungen nicht verschieben.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Diese Sitzung lässt Programme die Tasten für Kopieren und Einfügen nicht drücken: Die zweite Zwischenablage funktioniert nicht.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Diese Sitzung verrät nicht, wo der Zeiger ist: Tastatur und Maus wechseln am Bildschirmrand nicht.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Keine Tonausgabe gefunden: Systemlautstärke und Wahl der Ausgabe brauchen PulseAudio oder PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Dieser Desktop läuft ohne Compositor: Das Bild lässt sich nicht weiter abdunkeln, als die Helligkeit des Monitors reicht.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Diese Sitzung hält kein Fenster über allen anderen: Was später nach vorn kommt, wird möglicherweise nicht abgedunkelt.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Es läuft keine Desktopsitzung.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>In einer X11-Sitzung geht es.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Keine Berechtigung für %1, daher kann sein Monitor nicht gesteuert werden. Ihr Konto ist schon in der Gruppe %2: Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Keine Berechtigung für %1, daher kann sein Monitor nicht gesteuert werden. Die udev-Regel %2 dieses Programms ist nicht installiert: Installieren Sie sie unter %3 und starten Sie den Computer neu.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Keine Berechtigung für %1, daher kann sein Monitor nicht gesteuert werden. Die udev-Regel %2 dieses Programms ist nicht installiert: Installieren Sie sie unter %3 und starten Sie den Computer neu, oder nehmen Sie Ihr Konto in die Gruppe %4 auf und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Keine Berechtigung für %1, daher kann sein Monitor nicht gesteuert werden. Die udev-Regel ist installiert, aber diese Sitzung hat keinen Platz an diesem Computer: Nehmen Sie Ihr Konto in die Gruppe %2 auf und melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Keine Berechtigung für %1, daher kann sein Monitor nicht gesteuert werden. Die udev-Regel ist installiert, gilt aber noch nicht: Führen Sie als root "udevadm trigger --subsystem-match=i2c-dev" aus oder starten Sie den Computer neu.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Das System zeigt keine I2C-Gerätedateien, daher können externe Monitore nicht gesteuert werden. Laden Sie das Kernelmodul i2c-dev: Führen Sie als root "modprobe i2c-dev" aus, oder installieren Sie modules-load.d/lumen-desk.conf dieses Programms und starten Sie den Computer neu.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 führt jetzt zu einem anderen Monitor; ihm wurde nichts gesendet.</translation>
    </message>
</context>
</TS>
