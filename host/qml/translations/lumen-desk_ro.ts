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
</TS>
