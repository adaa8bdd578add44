<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Versie %1 · Apache-licentie 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache-licentie 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Geeft je de controle over je monitoren.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Introductie tonen</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Opensource-vermeldingen</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Rijen</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tegels</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Brede tegels</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Onderaan</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>%1 naar voren</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>%1 naar achteren</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Oorspronkelijke volgorde</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Indelen</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Kies wat het venster toont en in welke volgorde.</translation>
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
        <translation>Er is geen monitor aangesloten.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Het rapport bevat wat hier staat en het logboek van de bussen. Serienummers, je naam en je mappen blijven weg.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Rapport exporteren</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Opgeslagen in %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Alles is verborgen</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Monitoren zoeken…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Geen ondersteunde monitor gevonden</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Haal terug wat je nodig hebt; er is niets verloren.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Dit duurt even.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Sluit er een aan; hij verschijnt hier vanzelf.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Indelen</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>De monitor staat aan en is direct aangesloten via USB-C, DisplayPort of HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI staat aan in het menu van de monitor.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Dit account mag de I2C-apparaten gebruiken: installeer de regel of word lid van de groep ‘i2c’ en log opnieuw in.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Opnieuw zoeken</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Proberen met een gesimuleerde monitor</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Zoals het bureaublad</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoog contrast</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Zoals het bureaublad</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Starten bij aanmelden</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Schema’s en sneltoetsen werken zodra je bent aangemeld.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Blijf actief na het sluiten van het venster</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Het pictogram in het systeemvak haalt het venster terug.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Lumen Desk opnieuw starten haalt het venster terug.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Mijn instellingen herstellen bij het starten</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Monitoren krijgen de waarden van de vorige sessie. Uitgeschakeld houden ze hun eigen waarden.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Actie instellen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Deze flow heeft alle acties van de monitor.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Ingebouwd</translation>
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
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Overdrachten</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Herhalingen</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fouten</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Geleerde wachttijden</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Schrijfacties vandaag</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Zekering</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>slaapt</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>geeft geen antwoord</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>antwoordt</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>ingebouwd</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>gesimuleerd</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>gesloten</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Scherm</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>niet te onderscheiden van dat van een gelijke monitor</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>de map kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Het rapport kon niet naar %1 worden geschreven: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>geen antwoord</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>leeg antwoord</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>onjuiste controlesom</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>niet-ondersteunde code</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>misvormd antwoord</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>bus bezet</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>geen toegang tot de bus</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor verdwenen</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>geweigerd na te veel schrijfacties</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>scherm slaapt</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms vóór een antwoord</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms na een schrijfactie</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>open voor %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>gesloten; keren geopend: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 op %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Die naam bestaat al.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Kleurmodus</translation>
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
        <translation>Toepassingen openen</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Flow toevoegen</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Flow hernoemen</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Even geduld…</translation>
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
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, uur</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minuut</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Einde</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Eindigt de volgende dag.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Begin en einde zijn gelijk.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Herhalen</translation>
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
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Uren</translation>
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
        <translation>%1 is niet beschikbaar in de huidige kleurmodus.</translation>
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
        <translation>Aangepast</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Eigen</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialoog</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muziek</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Bioscoop</translation>
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
        <translation>Gebruiker</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Onderdelen</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Twee computers</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Lumen Desk tonen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Welkom bij Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Proberen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Onderdelen</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Kies wat het venster toont en in welke volgorde.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Onderdelen kun je indelen als een ondersteunde monitor is aangesloten.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Deze sessie laat programma's de resolutie niet wijzigen.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Deze sessie laat programma's het beeld niet draaien.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Deze sessie laat programma's de schaal niet wijzigen.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Deze sessie geeft programma's geen toetsen zolang een ander venster vooraan staat: sneltoetsen werken alleen in de vensters van Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Deze sessie vertelt niet welke toepassing vooraan staat.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Deze sessie laat programma's de vensters van andere toepassingen niet verplaatsen.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Deze sessie laat programma's de toetsen voor kopiëren en plakken niet indrukken: het tweede klembord werkt niet.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Deze sessie vertelt niet waar de aanwijzer is: toetsenbord en muis wisselen niet aan de rand van het scherm.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Geen geluidsuitvoer gevonden: het systeemvolume en de keuze van de uitvoer hebben PulseAudio of PipeWire nodig.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Dit bureaublad heeft geen compositor: het beeld kan niet donkerder dan de helderheid van de monitor zelf.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Deze sessie houdt geen venster boven alle andere: wat later vooraan komt, wordt mogelijk niet verduisterd.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Er is geen bureaubladsessie.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>In een X11-sessie werkt het.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Geen toestemming voor %1, dus de monitor daarvan kan niet worden bediend. Uw account zit al in de groep %2: meld u af en weer aan.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Geen toestemming voor %1, dus de monitor daarvan kan niet worden bediend. De udev-regel %2 van dit programma is niet geïnstalleerd: installeer die in %3 en start de computer opnieuw op.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Geen toestemming voor %1, dus de monitor daarvan kan niet worden bediend. De udev-regel %2 van dit programma is niet geïnstalleerd: installeer die in %3 en start de computer opnieuw op, of voeg uw account toe aan de groep %4 en meld u opnieuw aan.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Geen toestemming voor %1, dus de monitor daarvan kan niet worden bediend. De udev-regel is geïnstalleerd, maar deze sessie heeft geen werkplek op deze computer: voeg uw account toe aan de groep %2 en meld u opnieuw aan.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Geen toestemming voor %1, dus de monitor daarvan kan niet worden bediend. De udev-regel is geïnstalleerd maar niet van kracht: voer "udevadm trigger --subsystem-match=i2c-dev" uit als root of start de computer opnieuw op.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Het systeem toont geen I2C-apparaatbestanden, dus externe monitoren kunnen niet worden bediend. Laad de kernelmodule i2c-dev: voer "modprobe i2c-dev" uit als root, of installeer modules-load.d/lumen-desk.conf van dit programma en start de computer opnieuw op.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 leidt nu naar een andere monitor; er is niets naartoe gestuurd.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Twee computers</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Twee computers aan één monitor kunnen toetsenbord en muis overdragen aan de rand van het scherm. Verbonden spreken ze af wie de aanwijzer heeft, en hij komt binnen waar hij vertrok.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Verbinding met een tweede computer</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Alleen de computer die u koppelt kan verbinden, versleuteld en in uw lokale netwerk. Hij weet waar de aanwijzer is: toetsen, teksten en bestanden worden niet verzonden. Zolang ze aan is, ziet het netwerk de naam van deze computer.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Hij heeft geen adres in een lokaal netwerk.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Gekoppelde computer</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Opnieuw koppelen</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Een computer koppelen</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Computer zonder naam</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Laatst gezien op %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbonden</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Daar niet gekoppeld</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Hij antwoordt, maar kent deze computer niet meer. Koppel de twee opnieuw.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Hij wordt vanzelf teruggevonden zodra hij in hetzelfde netwerk draait. Heeft hij een ander adres, dan kunt u het hier invoeren.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Ander adres</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Vergeten</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>%1 vergeten?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>De twee verbinden niet meer tot ze opnieuw gekoppeld zijn.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Op de ene computer</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Hij wacht twee minuten op één oproep.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Wachten op de andere computer</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Op de andere computer</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Voer het adres in van de computer die wacht. Waar de dienst Avahi draait, wordt hij vanzelf gevonden.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Kies de computer die wacht, of voer zijn adres in.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Geen computer in de buurt heeft dit ingeschakeld. U kunt ook zijn adres invoeren.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Koppelen</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Koppelen met %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Adres van de andere computer</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Wachten op de andere computer</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>De andere computer wordt opgeroepen</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Bevestig de code nu op de andere computer</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Toont %1 dezelfde code?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Toont de andere computer dezelfde code?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Kies daar deze computer, of voer zijn adres in: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Verschillen de codes, dan zit er iemand tussen: antwoord nee.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Ja, koppelen</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Locatiedienst van het systeem</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue wordt naar uw stad gevraagd, en niet preciezer. Daarvoor kan het een dienst op internet melden welke netwerken om u heen zijn. Zonder antwoord geldt de stad van de tijdzone.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Stad van de tijdzone</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Niemand wordt gevraagd.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Uw tijdzone heeft geen stad.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Een plaats die ik kies</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Niemand wordt gevraagd.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Niets volgt de zon. Tijden die u zelf instelt, blijven werken.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Functies die zonsopgang en zonsondergang volgen, moeten ongeveer weten waar u bent. Niets anders gebruikt dat.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Gebruikte positie</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Ze wordt, afgerond op honderdsten van een graad, naar %1 gestuurd voor de tijden van zonsopgang en zonsondergang.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>De tijden van zonsopgang en zonsondergang worden op deze computer berekend. De positie wordt naar niemand gestuurd.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Gekozen plaats: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Gekozen plaats</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stad</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Uit de steden die een tijdzone hun naam geven. Ze zijn hier bekend: er wordt niets verzonden.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Graden ten noorden van de evenaar. Zuid is negatief.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Graden ten oosten van Greenwich. West is negatief.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Een breedte is een getal van -90 tot 90, een lengte van -180 tot 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>De verbinding kon niet worden ingeschakeld: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Dit is geen adres, zoals 192.168.1.7, en geen naam van een computer.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Alleen een computer in uw lokale netwerk kan worden gekoppeld.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Geen andere computer heeft zich binnen twee minuten gemeld.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>De code is niet binnen twee minuten op beide computers bevestigd.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Daar antwoordt geen Lumen Desk. Zijn beide computers in hetzelfde netwerk, is de verbinding daar ingeschakeld en laat een firewall haar door?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>De andere computer wacht niet. Kies daar eerst „Wachten op de andere computer”.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>De andere computer heeft de code niet bevestigd.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>De beller houdt zich niet aan de regels. Er is niets gekoppeld.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Er is geen computer met deze naam gevonden.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>%1° Z</translation>
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
