<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hr" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Inačica %1 · Apache License 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache License 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Daje vam nadzor nad vašim monitorima.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Prikaži uvod</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Napomene o otvorenom kodu</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Redci</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Pločice</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Široke pločice</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Na dnu</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Pomakni %1 naprijed</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Pomakni %1 natrag</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Vrati izvorni redoslijed</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Rasporedi</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Odaberite što prozor prikazuje i kojim redom.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Dijagnostika</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Nijedan monitor nije spojen.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Izvješće sadrži ovdje prikazano i zapisnik sabirnica. Serijski brojevi, vaše ime i mape izostavljeni su.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Izvezi izvješće</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Zapisano u %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Sve je skriveno</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Traženje monitora…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Nije pronađen podržani monitor</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Vratite što vam treba; ništa nije izgubljeno.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Ovo traje trenutak.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Priključite ga i sam će se pojaviti ovdje.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Rasporedi</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Monitor je uključen i izravno spojen putem USB-C, DisplayPort ili HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI je uključen u izborniku monitora.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Ovaj račun smije koristiti I2C uređaje: instalirajte pravilo ili se pridružite grupi „i2c“ i ponovno se prijavite.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Traži ponovno</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Isprobaj sa simuliranim monitorom</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Kao radna površina</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Svijetlo</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tamno</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Visoki kontrast</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Općenito</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jezik</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Kao radna površina</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Pokreni pri prijavi</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Rasporedi i prečaci rade čim se prijavite.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Nastavi rad nakon zatvaranja prozora</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Ikona u traci vraća prozor.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Ponovno pokretanje Lumen Deska vraća prozor.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Vrati moje postavke pri pokretanju</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Monitori dobivaju vrijednosti zadnje sesije. Isključeno, zadržavaju svoje.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Postavke</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Postavi radnju</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalje</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Ovaj tijek ima sve radnje koje monitor nudi.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Ugrađeni</translation>
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
        <translation>Veza</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Stanje</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Prijenosi</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Ponovni pokušaji</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Pogreške</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Naučena čekanja</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Zapisi danas</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Osigurač</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nema</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nepoznato</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>spava</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>ne odgovara</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>odgovara</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>ugrađen</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simuliran</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>zatvoren</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Zaslon</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>ne razlikuje se od zaslona jednakog monitora</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>mapa se ne može stvoriti</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Izvješće se ne može zapisati u %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>nema odgovora</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>prazan odgovor</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>pogrešan kontrolni zbroj</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>nepodržan kod</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>neispravan odgovor</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>sabirnica zauzeta</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>nema pristupa sabirnici</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor nestao</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>otkazano</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>odbijeno nakon previše zapisa</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>zaslon spava</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms prije odgovora</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms nakon zapisa</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>otvoren za %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>zatvoren; broj otvaranja: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 na %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Pomoć</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Uredi</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Izbriši</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Spremi</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naziv</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Taj naziv već postoji.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Spremi</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Način boja</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Zvuk</translation>
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
        <translation>Otvori aplikacije</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Dodaj tijek</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Preimenuj tijek</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Pričekajte…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Raspored</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spremi</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, sat</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minuta</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Početak</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Kraj</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Završava sljedeći dan.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Početak i kraj su isti.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Ponavljanje</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Sati</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minute</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 nije dostupno u trenutačnom načinu boja.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
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
        <translation>Prilagođeno</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Izvorno</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standardno</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dijalog</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Glazba</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Igra</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Korisnik</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Natrag</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Općenito</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Elementi</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Dijagnostika</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Postavke</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Napredno</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lokacija</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Dva računala</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Prikaži Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Postavke</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zatvori program</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Dobro došli u Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Isprobaj</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Natrag</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotovo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalje</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Elementi</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Odaberite što prozor prikazuje i kojim redom.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Elementi se mogu rasporediti dok je spojen podržani monitor.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Ova sesija ne dopušta programima promjenu razlučivosti.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Ova sesija ne dopušta programima okretanje slike.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Ova sesija ne dopušta programima promjenu skaliranja.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Ova sesija ne daje programima tipke dok je drugi prozor sprijeda: prečaci rade samo u prozorima Lumen Deska.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Ova sesija ne govori koja je aplikacija sprijeda.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Ova sesija ne dopušta programima pomicanje prozora drugih aplikacija.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Ova sesija ne dopušta programima pritisnuti tipke za kopiranje i lijepljenje: drugi međuspremnik ne radi.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Ova sesija ne govori gdje je pokazivač: tipkovnica i miš ne prebacuju se na rubu zaslona.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Nije pronađen zvučni izlaz: glasnoća sustava i odabir izlaza trebaju PulseAudio ili PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Ova radna površina nema slagatelja: slika se ne može zatamniti više od svjetline monitora.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Ova sesija ne drži nijedan prozor iznad svih ostalih: ono što kasnije dođe naprijed možda neće biti zatamnjeno.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Nema sesije radne površine.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>U sesiji X11 to radi.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Nema dopuštenja za %1, pa se njegovim monitorom ne može upravljati. Vaš račun već je u grupi %2: odjavite se i ponovno prijavite.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Nema dopuštenja za %1, pa se njegovim monitorom ne može upravljati. Pravilo udev %2 ovog programa nije instalirano: instalirajte ga u %3 i ponovno pokrenite računalo.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Nema dopuštenja za %1, pa se njegovim monitorom ne može upravljati. Pravilo udev %2 ovog programa nije instalirano: instalirajte ga u %3 i ponovno pokrenite računalo ili dodajte svoj račun u grupu %4 i ponovno se prijavite.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Nema dopuštenja za %1, pa se njegovim monitorom ne može upravljati. Pravilo udev je instalirano, ali ova sesija nema radno mjesto na ovom računalu: dodajte svoj račun u grupu %2 i ponovno se prijavite.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Nema dopuštenja za %1, pa se njegovim monitorom ne može upravljati. Pravilo udev je instalirano, ali nije na snazi: pokrenite "udevadm trigger --subsystem-match=i2c-dev" kao root ili ponovno pokrenite računalo.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Sustav ne pokazuje datoteke uređaja I2C, pa se vanjskim monitorima ne može upravljati. Učitajte modul jezgre i2c-dev: pokrenite "modprobe i2c-dev" kao root ili instalirajte modules-load.d/lumen-desk.conf ovog programa i ponovno pokrenite računalo.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 sada vodi do drugog monitora; ništa mu nije poslano.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Dva računala</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Dva računala na jednom monitoru mogu na rubu zaslona predati tipkovnicu i miš. Povezana se slažu tko ima pokazivač, a on ulazi ondje gdje je izašao.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Veza s drugim računalom</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Povezati se može samo upareno računalo, šifrirano i u lokalnoj mreži. Ono doznaje gdje je pokazivač: tipke, tekstovi i datoteke se ne šalju. Dok je uključena, mreža vidi ime ovog računala.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ovo računalo</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Nema adresu u lokalnoj mreži.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Upareno računalo</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Upari ponovno</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Upari računalo</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Računalo bez imena</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Zadnji put na %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Isključeno</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Povezano</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Ondje neupareno</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Traženje</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Odgovara, ali više ne poznaje ovo računalo. Uparite ih ponovno.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Pronalazi se samo čim radi u istoj mreži. Ako ima drugu adresu, možete je upisati ovdje.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Druga adresa</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Zaboravi</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Poveži</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Zaboraviti %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Računala se ne povezuju dok se ponovno ne upare.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Zadrži</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Na jednom računalu</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Dvije minute čeka jedan poziv.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Čekaj drugo računalo</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Na drugom računalu</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Upišite adresu računala koje čeka. Gdje radi usluga Avahi, pronalazi se samo.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Odaberite računalo koje čeka ili upišite njegovu adresu.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Nijedno računalo u blizini nema ovo uključeno. Možete i upisati njegovu adresu.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Upari</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Upari s %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Adresa drugog računala</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Čeka se drugo računalo</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Poziva se drugo računalo</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Sada potvrdite kod na drugom računalu</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Pokazuje li %1 isti kod?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Pokazuje li drugo računalo isti kod?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Ondje odaberite ovo računalo ili upišite njegovu adresu: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Ako se kodovi razlikuju, netko je između: odgovorite ne.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Da, upari</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Usluga lokacije sustava</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue se pita za vaš grad, ništa preciznije. Kako bi ga našao, može usluzi na internetu poslati koje su mreže oko vas. Bez odgovora vrijedi grad vremenske zone.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Grad vremenske zone</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Nikoga se ne pita.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Vaša vremenska zona nema grad.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Mjesto koje odaberem</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Nikoga se ne pita.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Isključeno</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Ništa ne slijedi sunce. Vremena koja sami postavite i dalje vrijede.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lokacija</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Funkcije koje slijede izlazak i zalazak sunca moraju otprilike znati gdje ste. Ništa drugo to ne koristi.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Korišteni položaj</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Šalje se, zaokružen na stotinke stupnja, na %1 za vremena izlaska i zalaska sunca.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Vremena izlaska i zalaska sunca računaju se na ovom računalu. Položaj se nikome ne šalje.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nijedan</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Odabrano mjesto: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Odabrano mjesto</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Od gradova po kojima se zovu vremenske zone. Poznati su ovdje: ništa se ne šalje.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Traži</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Širina</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Stupnjevi sjeverno od ekvatora. Jug je negativan.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Dužina</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Stupnjevi istočno od Greenwicha. Zapad je negativan.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Širina je broj od -90 do 90, dužina od -180 do 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Vezu nije bilo moguće uključiti: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>To nije ni adresa, poput 192.168.1.7, ni ime računala.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Upariti se može samo računalo iz vaše lokalne mreže.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Nijedno se drugo računalo nije javilo u dvije minute.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Kod nije potvrđen na oba računala u dvije minute.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Ondje ne odgovara nijedan Lumen Desk. Jesu li oba računala u istoj mreži, je li veza ondje uključena i propušta li je vatrozid?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>Drugo računalo ne čeka. Ondje najprije odaberite „Čekaj drugo računalo”.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>Drugo računalo nije potvrdilo kod.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Pozivatelj se ne drži pravila. Ništa nije upareno.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Nije pronađeno računalo tog imena.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>%1° J</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>%1° S</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>%1° Z</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° I</translation>
    </message>
</context>
</TS>
