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
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Zwei Computer</translation>
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
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Zwei Computer</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Zwei Computer an einem Monitor können Tastatur und Maus am Bildschirmrand übergeben. Verbunden sind sie sich einig, wer den Zeiger hat, und er kommt dort an, wo er hinausging.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Verbindung zu einem zweiten Computer</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Nur der gekoppelte Computer kann sich verbinden, verschlüsselt und im lokalen Netz. Er erfährt, wo der Zeiger ist; Tasten, Texte und Dateien werden nicht gesendet. Solange sie an ist, sieht das Netz den Namen dieses Computers.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Er hat keine Adresse in einem lokalen Netz.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Gekoppelter Computer</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Neu koppeln</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Computer koppeln</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Computer ohne Namen</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Zuletzt unter %1 getroffen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Dort nicht gekoppelt</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Er antwortet, kennt diesen Computer aber nicht mehr. Koppeln Sie die beiden neu.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Er wird von selbst wiedergefunden, sobald er im selben Netz läuft. Hat er eine andere Adresse, können Sie sie hier eingeben.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Andere Adresse</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>%1 vergessen?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Die beiden verbinden sich erst wieder, wenn sie neu gekoppelt sind.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Auf einem Computer</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Er wartet zwei Minuten auf einen Anruf.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Auf anderen Computer warten</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Auf dem anderen Computer</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Geben Sie die Adresse des wartenden Computers ein. Wo der Dienst Avahi läuft, wird er von selbst gefunden.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Wählen Sie den wartenden Computer oder geben Sie seine Adresse ein.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Kein Computer in der Nähe hat dies eingeschaltet. Sie können auch seine Adresse eingeben.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Koppeln</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Mit %1 koppeln</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Adresse des anderen Computers</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Warten auf den anderen Computer</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Anruf beim anderen Computer</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Bestätigen Sie den Code jetzt auf dem anderen Computer</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Zeigt %1 denselben Code?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Zeigt der andere Computer denselben Code?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Wählen Sie dort diesen Computer oder geben Sie seine Adresse ein: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Sind die Codes verschieden, ist jemand dazwischen: Antworten Sie mit Nein.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Ja, koppeln</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Standortdienst des Systems</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue wird nach Ihrer Stadt gefragt und nicht genauer. Dazu kann es einem Dienst im Internet mitteilen, welche Netze um Sie sind. Ohne Antwort gilt die Stadt der Zeitzone.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Stadt der Zeitzone</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Niemand wird gefragt.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Ihre Zeitzone hat keine Stadt.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Ein Ort meiner Wahl</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Niemand wird gefragt.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nichts folgt der Sonne. Selbst eingestellte Zeiten gelten weiter.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Funktionen, die Sonnenauf- und -untergang folgen, müssen ungefähr wissen, wo Sie sind. Sonst nutzt das nichts.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Verwendete Position</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Sie wird, auf hundertstel Grad gerundet, für die Zeiten von Sonnenauf- und -untergang an %1 gesendet.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Sonnenauf- und -untergang werden auf diesem Computer berechnet. Die Position wird niemandem gesendet.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Gewählter Ort: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Gewählter Ort</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Von den Städten, nach denen Zeitzonen heißen. Sie sind hier bekannt: Nichts wird gesendet.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Grad nördlich des Äquators. Süden ist negativ.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Grad östlich von Greenwich. Westen ist negativ.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Eine Breite ist eine Zahl von -90 bis 90, eine Länge eine von -180 bis 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Die Verbindung ließ sich nicht einschalten: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Das ist weder eine Adresse wie 192.168.1.7 noch der Name eines Computers.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Nur ein Computer Ihres lokalen Netzes kann gekoppelt werden.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Kein anderer Computer hat sich innerhalb von zwei Minuten gemeldet.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Der Code wurde nicht innerhalb von zwei Minuten auf beiden Computern bestätigt.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Dort antwortet kein Lumen Desk. Sind beide Computer im selben Netz, ist die Verbindung dort eingeschaltet, und lässt eine Firewall sie durch?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>Der andere Computer wartet nicht. Wählen Sie dort zuerst „Auf anderen Computer warten“.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>Der andere Computer hat den Code nicht bestätigt.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Der Anrufer hält sich nicht an die Regeln. Nichts wurde gekoppelt.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Kein Computer dieses Namens wurde gefunden.</translation>
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
        <translation>%1° W</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° O</translation>
    </message>
</context>
</TS>
