<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Version %1 · Apache-licens 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache-licens 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Ger dig kontroll över dina skärmar.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Visa introduktionen</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Information om öppen källkod</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Rutor</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Breda rutor</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Längst ned</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Flytta %1 framåt</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Flytta %1 bakåt</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Återställ ordningen</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Ordna</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Välj vad fönstret visar och i vilken ordning.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostik</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Ingen skärm är ansluten.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Rapporten innehåller det som visas här och bussarnas logg. Serienummer, ditt namn och dina mappar utelämnas.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Exportera rapport</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Sparad i %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Allt är dolt</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Söker efter skärmar…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Ingen skärm som stöds hittades</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Ta tillbaka det du behöver; inget har gått förlorat.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Det tar en stund.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Anslut en så visas den här av sig själv.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Ordna</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Skärmen är på och direkt ansluten via USB-C, DisplayPort eller HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI är på i skärmens meny.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Kontot får använda I2C-enheterna: installera enhetsregeln eller gå med i gruppen ”i2c” och logga in igen.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Sök igen</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Prova med en simulerad skärm</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Följ skrivbordet</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ljust</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mörkt</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hög kontrast</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Som skrivbordet</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Starta vid inloggning</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Scheman och genvägar fungerar direkt efter inloggningen.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Fortsätt köra när fönstret stängs</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Ikonen i fältet tar tillbaka fönstret.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Starta Lumen Desk igen för att få tillbaka fönstret.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Återställ inställningarna vid start</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Skärmarna får värdena från förra sessionen. Avstängt behåller de sina egna.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Ange en åtgärd</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Flödet har alla åtgärder som skärmen erbjuder.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Inbyggd</translation>
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
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Tillstånd</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Överföringar</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Omförsök</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Inlärda väntetider</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Skrivningar i dag</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Säkring</translation>
    </message>
    <message>
        <source>none</source>
        <translation>inga</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>okänt</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>vilar</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>svarar inte</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>svarar</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>inbyggd</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulerad</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>sluten</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Skärm</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>går inte att skilja från en likadan bildskärms</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>mappen kan inte skapas</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Rapporten kunde inte skrivas till %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>inget svar</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>tomt svar</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>fel kontrollsumma</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>kod som inte stöds</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>felaktigt svar</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>bussen upptagen</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>ingen åtkomst till bussen</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>bildskärmen borta</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>avbrutet</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>nekat efter för många skrivningar</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>skärmen sover</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms före ett svar</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms efter en skrivning</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>öppen för %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>stängd; antal öppningar: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 på %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Namnet finns redan.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Färgläge</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Ljud</translation>
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
        <translation>Öppna program</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Lägg till ett flöde</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Byt namn på flödet</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Vänta…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, timme</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minut</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Slut</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Slutar nästa dag.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Start och slut är samma.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Upprepa</translation>
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
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Timmar</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuter</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 är inte tillgängligt i det aktuella färgläget.</translation>
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
        <translation>Skärm</translation>
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
        <translation>Egen</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Inbyggd</translation>
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
        <translation>Bio</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spel</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Användare</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostik</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Plats</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Två datorer</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Visa Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Välkommen till Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Välj vad fönstret visar och i vilken ordning.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Element kan ordnas när en skärm som stöds är ansluten.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Den här sessionen låter inte program ändra upplösningen.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Den här sessionen låter inte program vrida bilden.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Den här sessionen låter inte program ändra skalningen.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Den här sessionen ger inte program några tangenter medan ett annat fönster är främst: kortkommandon fungerar bara i Lumen Desks fönster.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Den här sessionen berättar inte vilket program som är främst.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Den här sessionen låter inte program flytta andra programs fönster.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Den här sessionen låter inte program trycka på tangenterna för kopiera och klistra in: det andra urklippet fungerar inte.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Den här sessionen berättar inte var pekaren är: tangentbord och mus växlar inte vid skärmens kant.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Ingen ljudutgång hittades: systemvolymen och valet av utgång behöver PulseAudio eller PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Det här skrivbordet har ingen kompositor: bilden kan inte göras mörkare än bildskärmens egen ljusstyrka.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Den här sessionen håller inget fönster över alla andra: det som senare kommer främst kanske inte mörkas.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Det finns ingen skrivbordssession.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>I en X11-session fungerar det.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Behörighet saknas för %1, så dess bildskärm kan inte styras. Ditt konto är redan med i gruppen %2: logga ut och in igen.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Behörighet saknas för %1, så dess bildskärm kan inte styras. Programmets udev-regel %2 är inte installerad: installera den i %3 och starta om datorn.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Behörighet saknas för %1, så dess bildskärm kan inte styras. Programmets udev-regel %2 är inte installerad: installera den i %3 och starta om datorn, eller lägg till ditt konto i gruppen %4 och logga in igen.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Behörighet saknas för %1, så dess bildskärm kan inte styras. Udev-regeln är installerad, men den här sessionen har ingen plats vid den här datorn: lägg till ditt konto i gruppen %2 och logga in igen.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Behörighet saknas för %1, så dess bildskärm kan inte styras. Udev-regeln är installerad men gäller inte ännu: kör "udevadm trigger --subsystem-match=i2c-dev" som root eller starta om datorn.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Systemet visar inga I2C-enhetsfiler, så externa bildskärmar kan inte styras. Ladda kärnmodulen i2c-dev: kör "modprobe i2c-dev" som root, eller installera programmets modules-load.d/lumen-desk.conf och starta om datorn.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 leder nu till en annan bildskärm; inget skickades till den.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Två datorer</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Två datorer som delar en bildskärm kan lämna över tangentbord och mus vid skärmens kant. Anslutna är de överens om vem som har pekaren, och den kommer in där den gick ut.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Anslutning till en andra dator</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Bara datorn som du parkopplar kan ansluta, krypterat och i ditt lokala nätverk. Den får veta var pekaren är: inga tangenter, texter eller filer skickas. Medan den är på ser nätverket den här datorns namn.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Den har ingen adress i ett lokalt nätverk.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Parkopplad dator</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Parkoppla på nytt</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Parkoppla en dator</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Dator utan namn</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Senast sedd på %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ansluten</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Inte parkopplad där</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Söker</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Den svarar men känner inte den här datorn längre. Parkoppla de två på nytt.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Den hittas av sig själv så snart den är igång i samma nätverk. Har den en annan adress kan du skriva den här.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Annan adress</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Glöm</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Anslut</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Glöm %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>De två ansluter inte förrän de parkopplas på nytt.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behåll</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. På den ena datorn</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Den väntar i två minuter på ett anrop.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Vänta på den andra datorn</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. På den andra datorn</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Skriv adressen till datorn som väntar. Där tjänsten Avahi är igång hittas den av sig själv.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Välj datorn som väntar eller skriv dess adress.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Ingen dator i närheten har detta på. Du kan också skriva dess adress.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Parkoppla</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Parkoppla med %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Den andra datorns adress</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Väntar på den andra datorn</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Anropar den andra datorn</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Bekräfta nu koden på den andra datorn</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Visar %1 samma kod?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Visar den andra datorn samma kod?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Välj den här datorn där eller skriv dess adress: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Om koderna skiljer sig är någon emellan: svara nej.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Ja, parkoppla</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Systemets platstjänst</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue tillfrågas om din stad, inte närmare. För att hitta den kan den berätta för en tjänst på internet vilka nätverk som finns omkring dig. Utan svar används tidszonens stad.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Tidszonens stad</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Ingen tillfrågas.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Din tidszon har ingen stad.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>En plats som jag väljer</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Ingen tillfrågas.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Inget följer solen. Tider som du själv ställer in gäller fortfarande.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Plats</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Funktioner som följer soluppgång och solnedgång behöver veta ungefär var du är. Inget annat använder det.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Använd position</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Den skickas, avrundad till hundradels grader, till %1 för tiderna för soluppgång och solnedgång.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Tiderna för soluppgång och solnedgång beräknas på den här datorn. Positionen skickas inte till någon.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Vald plats: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Vald plats</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stad</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Av städerna som ger en tidszon dess namn. De är kända här: inget skickas.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Grader norr om ekvatorn. Söder är negativt.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Grader öster om Greenwich. Väster är negativt.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>En latitud är ett tal från -90 till 90, en longitud från -180 till 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Anslutningen kunde inte slås på: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Det är varken en adress, som 192.168.1.7, eller namnet på en dator.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Bara en dator i ditt lokala nätverk kan parkopplas.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Ingen annan dator har anropat inom två minuter.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Koden bekräftades inte på båda datorerna inom två minuter.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Inget Lumen Desk svarar där. Är båda datorerna i samma nätverk, är anslutningen påslagen där och släpper en brandvägg igenom den?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>Den andra datorn väntar inte. Välj först ”Vänta på den andra datorn” där.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>Den andra datorn bekräftade inte koden.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Den som anropade följer inte reglerna. Inget parkopplades.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Ingen dator med det namnet hittades.</translation>
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
        <translation>%1° V</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° Ö</translation>
    </message>
</context>
</TS>
