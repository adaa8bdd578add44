<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Versiunea %1 · Licența Apache 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Licența Apache 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Vă oferă controlul asupra monitoarelor.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Arată introducerea</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Note open-source</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Rânduri</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Dale</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Dale late</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>În partea de jos</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Mută %1 înainte</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Mută %1 înapoi</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Revino la ordinea inițială</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Aranjare</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Alegeți ce arată fereastra și în ce ordine.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnosticare</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Niciun monitor conectat.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Raportul conține cele afișate aici și jurnalul magistralelor. Numerele de serie, numele și dosarele sunt omise.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Exportă raportul</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Salvat în %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Totul este ascuns</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Se caută monitoare…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Niciun monitor acceptat</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Readuceți ce aveți nevoie; nu s-a pierdut nimic.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Durează un moment.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Conectați unul și va apărea aici singur.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Aranjare</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Monitorul este pornit și conectat direct prin USB-C, DisplayPort sau HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI este pornit în meniul monitorului.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Acest cont poate folosi dispozitivele I2C: instalați regula sau intrați în grupul „i2c”, apoi autentificați-vă din nou.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Caută din nou</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Încercați cu un monitor simulat</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Ca desktopul</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Luminos</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Întunecat</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contrast ridicat</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Temă</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Limbă</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Ca desktopul</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Pornește la autentificare</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Programele și scurtăturile funcționează imediat după autentificare.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Continuă după închiderea ferestrei</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Pictograma din zona de notificare readuce fereastra.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>O nouă pornire a Lumen Desk readuce fereastra.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Restabilește setările la pornire</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Monitoarele primesc valorile ultimei sesiuni. Dezactivat, le păstrează pe ale lor.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Setează o acțiune</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Înainte</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Acest flux are toate acțiunile monitorului.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Integrat</translation>
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
        <translation>Conexiune</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Stare</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transferuri</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Reîncercări</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erori</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Așteptări învățate</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Scrieri azi</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Siguranță</translation>
    </message>
    <message>
        <source>none</source>
        <translation>niciuna</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>necunoscut</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>în repaus</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>nu răspunde</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>răspunde</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>integrat</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulat</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>închisă</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Ecran</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>nu poate fi deosebit de cel al unui monitor identic</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>dosarul nu poate fi creat</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Raportul nu a putut fi scris în %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>fără răspuns</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>răspuns gol</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>sumă de control greșită</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>cod neacceptat</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>răspuns malformat</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>magistrală ocupată</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>fără acces la magistrală</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor dispărut</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>anulat</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>refuzat după prea multe scrieri</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>ecran în repaus</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms înainte de un răspuns</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms după o scriere</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>deschis pentru %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>închis; deschideri: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 pe %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Ajutor</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Editare</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ștergere</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Salvează</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Acest nume există deja.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Salvează</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Mod de culoare</translation>
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
        <translation>Deschide aplicații</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Adaugă un flux</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Redenumește fluxul</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Așteptați…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvează</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, ora</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minutul</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Început</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Sfârșit</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Se termină a doua zi.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Începutul și sfârșitul coincid.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetare</translation>
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
        <translation>Anulează</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Ore</translation>
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
        <translation>%1 nu este disponibil în modul de culoare curent.</translation>
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
        <translation>Personalizat</translation>
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
        <translation>Muzică</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinema</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Joc</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizator</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnosticare</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Despre</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avansat</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locație</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Două calculatoare</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Arată Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ieșire</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Bun venit în Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Încearcă</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gata</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Înainte</translation>
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
        <translation>Alegeți ce arată fereastra și în ce ordine.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Elementele se pot aranja cu un monitor acceptat conectat.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Această sesiune nu permite programelor să schimbe rezoluția.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Această sesiune nu permite programelor să rotească imaginea.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Această sesiune nu permite programelor să schimbe scalarea.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Această sesiune nu dă taste programelor cât timp altă fereastră este în față: comenzile rapide funcționează doar în ferestrele Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Această sesiune nu spune ce aplicație este în față.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Această sesiune nu permite programelor să mute ferestrele altor aplicații.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Această sesiune nu permite programelor să apese tastele de copiere și lipire: al doilea clipboard nu funcționează.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Această sesiune nu spune unde este indicatorul: tastatura și mausul nu comută la marginea ecranului.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Nu s-a găsit nicio ieșire audio: volumul sistemului și alegerea ieșirii au nevoie de PulseAudio sau PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Acest desktop nu are compozitor: imaginea nu poate fi întunecată mai mult decât luminozitatea monitorului.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Această sesiune nu ține nicio fereastră deasupra tuturor: ce vine mai târziu în față poate să nu fie întunecat.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Nu există o sesiune desktop.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>Într-o sesiune X11 funcționează.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Nu există permisiune pentru %1, așa că monitorul său nu poate fi controlat. Contul este deja în grupul %2: deconectați-vă și conectați-vă din nou.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Nu există permisiune pentru %1, așa că monitorul său nu poate fi controlat. Regula udev %2 a acestui program nu este instalată: instalați-o în %3 și reporniți calculatorul.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Nu există permisiune pentru %1, așa că monitorul său nu poate fi controlat. Regula udev %2 a acestui program nu este instalată: instalați-o în %3 și reporniți calculatorul sau adăugați contul în grupul %4 și conectați-vă din nou.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Nu există permisiune pentru %1, așa că monitorul său nu poate fi controlat. Regula udev este instalată, dar această sesiune nu are un loc la acest calculator: adăugați contul în grupul %2 și conectați-vă din nou.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Nu există permisiune pentru %1, așa că monitorul său nu poate fi controlat. Regula udev este instalată, dar nu este în vigoare: rulați "udevadm trigger --subsystem-match=i2c-dev" ca root sau reporniți calculatorul.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Sistemul nu arată fișiere de dispozitiv I2C, așa că monitoarele externe nu pot fi controlate. Încărcați modulul de nucleu i2c-dev: rulați "modprobe i2c-dev" ca root sau instalați modules-load.d/lumen-desk.conf al acestui program și reporniți calculatorul.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 duce acum la alt monitor; nu i s-a trimis nimic.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Două calculatoare</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Două calculatoare la același monitor își pot preda tastatura și mausul la marginea ecranului. Conectate, știu cine are indicatorul, iar el intră pe unde a ieșit.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Conexiune la un al doilea calculator</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Se poate conecta doar calculatorul asociat, criptat și în rețeaua locală. El află unde este indicatorul: nu se trimit taste, texte sau fișiere. Cât este activă, rețeaua vede numele acestui calculator.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Acest calculator</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Nu are o adresă într-o rețea locală.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Calculator asociat</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Asociază din nou</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Asociază un calculator</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Calculator fără nume</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Văzut ultima dată la %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectat</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Neasociat acolo</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Se caută</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Răspunde, dar nu mai cunoaște acest calculator. Asociați-le din nou.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Este regăsit de la sine de îndată ce rulează în aceeași rețea. Dacă are altă adresă, o puteți scrie aici.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Altă adresă</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Uită</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectează</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Uitați %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Cele două nu se mai conectează până nu sunt asociate din nou.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Păstrează</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Pe un calculator</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Așteaptă un apel timp de două minute.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Așteaptă celălalt calculator</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Pe celălalt calculator</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Scrieți adresa calculatorului care așteaptă. Unde rulează serviciul Avahi, este găsit de la sine.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Alegeți calculatorul care așteaptă sau scrieți adresa lui.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Niciun calculator din apropiere nu are aceasta pornită. Puteți scrie și adresa lui.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Asociază</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Asociază cu %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Adresa celuilalt calculator</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Se așteaptă celălalt calculator</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Se apelează celălalt calculator</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Confirmați acum codul pe celălalt calculator</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Arată %1 același cod?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Arată celălalt calculator același cod?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Alegeți acolo acest calculator sau scrieți adresa lui: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Dacă codurile diferă, este cineva la mijloc: răspundeți nu.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Da, asociază</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Anulează</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Serviciul de localizare al sistemului</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue este întrebat de orașul dvs., nimic mai precis. Pentru a-l afla, poate trimite unui serviciu de pe internet ce rețele sunt în jur. Fără răspuns se folosește orașul fusului orar.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Orașul fusului orar</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Nu este întrebat nimeni.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Fusul dvs. orar nu are un oraș.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Un loc ales de mine</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Nu este întrebat nimeni.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Oprit</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nimic nu urmează soarele. Orele setate de dvs. rămân valabile.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locație</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Funcțiile care urmează răsăritul și apusul trebuie să știe aproximativ unde sunteți. Nimic altceva nu folosește asta.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Poziția folosită</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Este trimisă, rotunjită la sutimi de grad, la %1 pentru orele răsăritului și apusului.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Orele răsăritului și apusului se calculează pe acest calculator. Poziția nu este trimisă nimănui.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Niciuna</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Loc ales: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Loc ales</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Oraș</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Dintre orașele care dau numele unui fus orar. Sunt cunoscute aici: nu se trimite nimic.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Caută</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitudine</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Grade la nord de ecuator. Sudul este negativ.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitudine</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Grade la est de Greenwich. Vestul este negativ.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>O latitudine este un număr de la -90 la 90, o longitudine de la -180 la 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Conexiunea nu a putut fi pornită: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Nu este nici o adresă, ca 192.168.1.7, nici numele unui calculator.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Se poate asocia doar un calculator din rețeaua locală.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Niciun alt calculator nu a apelat în două minute.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Codul nu a fost confirmat pe ambele calculatoare în două minute.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Acolo nu răspunde niciun Lumen Desk. Sunt ambele calculatoare în aceeași rețea, este conexiunea pornită acolo și o lasă firewallul să treacă?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>Celălalt calculator nu așteaptă. Alegeți întâi acolo „Așteaptă celălalt calculator”.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>Celălalt calculator nu a confirmat codul.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Cine a apelat nu respectă regulile. Nu s-a asociat nimic.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Nu s-a găsit niciun calculator cu acest nume.</translation>
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
        <translation>%1° E</translation>
    </message>
</context>
</TS>
