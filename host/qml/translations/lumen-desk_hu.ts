<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>%1 verzió · Apache License 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache License 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Ön irányítja a monitorjait.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Bemutató megtekintése</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Nyílt forráskódú összetevők</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Sorok</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Csempék</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Széles csempék</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Alul</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>%1 előre</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>%1 hátra</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Eredeti sorrend</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Elrendezés</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Válassza ki, mit mutasson az ablak, és milyen sorrendben.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnosztika</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Nincs csatlakoztatott monitor.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>A jelentés az itt láthatókat és a buszok naplóját tartalmazza. Sorozatszámok, az Ön neve és mappái nélkül.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Jelentés exportálása</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Mentve ide: %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Minden elem rejtve van</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Monitorok keresése…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Nem található támogatott monitor</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Hozza vissza, amire szüksége van; semmi sem veszett el.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Ez eltart egy pillanatig.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Csatlakoztasson egyet, és itt magától megjelenik.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Elrendezés</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>A monitor be van kapcsolva, és közvetlenül csatlakozik USB-C-n, DisplayPorton vagy HDMI-n.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>A DDC/CI be van kapcsolva a monitor menüjében.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Ez a fiók használhatja az I2C-eszközöket: telepítse az eszközszabályt, vagy lépjen be az „i2c” csoportba, majd jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Keresés újra</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Kipróbálás szimulált monitorral</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Az asztal szerint</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Világos</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sötét</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Nagy kontraszt</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Téma</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Az asztal szerint</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Indítás bejelentkezéskor</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Az ütemezések és gyorsbillentyűk a bejelentkezés pillanatától működnek.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Fusson tovább az ablak bezárása után</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Az ablakot a tálcaikon hozza vissza.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Az ablakot a Lumen Desk újabb indítása hozza vissza.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Beállítások visszaállítása indításkor</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>A monitorok a legutóbbi munkamenet értékeit kapják. Kikapcsolva megtartják a sajátjukat.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Művelet megadása</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Ez a folyamat a monitor minden műveletét tartalmazza.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Beépített</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>S/N: %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Átvitelek</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Újrapróbálások</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Hibák</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Tanult várakozások</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Mai írások</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Megszakító</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nincs</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>ismeretlen</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>alszik</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>nem válaszol</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>válaszol</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>beépített</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>szimulált</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>zárva</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Képernyő</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>nem különböztethető meg egy azonos monitorétól</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>a mappa nem hozható létre</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>A jelentés nem írható ide: %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>nincs válasz</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>üres válasz</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>hibás ellenőrző összeg</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>nem támogatott kód</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>hibás formájú válasz</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>foglalt busz</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>nincs hozzáférés a buszhoz</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>a monitor eltűnt</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>megszakítva</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>elutasítva túl sok írás után</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>a kijelző alszik</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms a válasz előtt</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms írás után</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>nyitva: %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>zárva; nyitások száma: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Mentés</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Ilyen név már van.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Mentés</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Színmód</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Hang</translation>
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
        <translation>Alkalmazások megnyitása</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Folyamat hozzáadása</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Folyamat átnevezése</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Kérem, várjon…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Ütemezés</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Mentés</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, óra</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, perc</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Kezdet</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Vége</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Másnap ér véget.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>A kezdet és a vége azonos.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Ismétlés</translation>
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
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Óra</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Perc</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 nem érhető el a jelenlegi színmódban.</translation>
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
        <translation>Egyéni</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Natív</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Normál</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Párbeszéd</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Zene</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Mozi</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Játék</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Stúdió</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Egyéni</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Elemek</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnosztika</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Hely</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Két számítógép</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Lumen Desk megjelenítése</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Üdvözli a Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Kipróbálom</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Elemek</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Válassza ki, mit mutasson az ablak, és milyen sorrendben.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Az elemek támogatott monitor csatlakoztatásakor rendezhetők.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Ez a munkamenet nem engedi a programoknak a felbontás módosítását.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Ez a munkamenet nem engedi a programoknak a kép elforgatását.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Ez a munkamenet nem engedi a programoknak a méretezés módosítását.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Ez a munkamenet nem ad billentyűket a programoknak, amíg másik ablak van elöl: a gyorsbillentyűk csak a Lumen Desk ablakaiban működnek.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Ez a munkamenet nem árulja el, melyik alkalmazás van elöl.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Ez a munkamenet nem engedi a programoknak más alkalmazások ablakainak mozgatását.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Ez a munkamenet nem engedi a programoknak a másolás és beillesztés billentyűinek lenyomását: a második vágólap nem működik.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Ez a munkamenet nem árulja el, hol van a mutató: a billentyűzet és az egér nem vált át a képernyő szélén.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Nem található hangkimenet: a rendszer hangerejéhez és a kimenet választásához PulseAudio vagy PipeWire kell.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Ezt az asztalt semmi sem kompozitálja: a kép nem sötétíthető a monitor saját fényerejénél tovább.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Ez a munkamenet egyetlen ablakot sem tart a többi felett: ami később előre kerül, nem biztos, hogy sötétül.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Nincs asztali munkamenet.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>X11-munkamenetben működik.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Nincs jogosultság a(z) %1 használatához, ezért a hozzá tartozó monitor nem vezérelhető. A fiókja már tagja a(z) %2 csoportnak: jelentkezzen ki, majd újra be.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Nincs jogosultság a(z) %1 használatához, ezért a hozzá tartozó monitor nem vezérelhető. A program %2 udev-szabálya nincs telepítve: telepítse ide: %3, és indítsa újra a számítógépet.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Nincs jogosultság a(z) %1 használatához, ezért a hozzá tartozó monitor nem vezérelhető. A program %2 udev-szabálya nincs telepítve: telepítse ide: %3, és indítsa újra a számítógépet, vagy vegye fel a fiókját a(z) %4 csoportba, és jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Nincs jogosultság a(z) %1 használatához, ezért a hozzá tartozó monitor nem vezérelhető. Az udev-szabály telepítve van, de ez a munkamenet nem ezen a számítógépen fut helyben: vegye fel a fiókját a(z) %2 csoportba, és jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Nincs jogosultság a(z) %1 használatához, ezért a hozzá tartozó monitor nem vezérelhető. Az udev-szabály telepítve van, de még nem érvényes: futtassa rootként: "udevadm trigger --subsystem-match=i2c-dev", vagy indítsa újra a számítógépet.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>A rendszeren nincsenek I2C-eszközfájlok, ezért a külső monitorok nem vezérelhetők. Töltse be az i2c-dev kernelmodult: futtassa rootként: "modprobe i2c-dev", vagy telepítse a program modules-load.d/lumen-desk.conf fájlját, és indítsa újra a számítógépet.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>A(z) %1 most másik monitorhoz vezet; semmi nem lett elküldve neki.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Két számítógép</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Egy monitoron osztozó két számítógép a képernyő szélén átadhatja a billentyűzetet és az egeret. Összekapcsolva tudják, kinél van a mutató, és az ott lép be, ahol kilépett.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Kapcsolat egy második számítógéppel</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Csak a párosított számítógép kapcsolódhat, titkosítva, a helyi hálózaton. Megtudja, hol van a mutató: billentyűket, szövegeket, fájlokat nem küld. Amíg be van kapcsolva, a hálózat látja e számítógép nevét.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Nincs címe helyi hálózaton.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Párosított számítógép</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Párosítás újra</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Számítógép párosítása</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Névtelen számítógép</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Utoljára itt: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Kapcsolódva</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Ott nincs párosítva</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Válaszol, de már nem ismeri ezt a számítógépet. Párosítsa újra a kettőt.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Magától megtalálható, amint ugyanazon a hálózaton fut. Ha más a címe, itt megadhatja.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Másik cím</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Elfelejtés</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Kapcsolódás</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Elfelejti ezt: %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>A kettő nem kapcsolódik, amíg újra nem párosítja őket.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Megtartás</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Az egyik számítógépen</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Két percig vár egy hívásra.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Várakozás a másik számítógépre</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. A másik számítógépen</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Írja be a várakozó számítógép címét. Ahol fut az Avahi szolgáltatás, magától megtalálható.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Válassza ki a várakozó számítógépet, vagy írja be a címét.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>A közelben egyik számítógépen sincs ez bekapcsolva. A címét is beírhatja.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Párosítás</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Párosítás ezzel: %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>A másik számítógép címe</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Várakozás a másik számítógépre</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>A másik számítógép hívása</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Most erősítse meg a kódot a másik számítógépen</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Ugyanezt a kódot mutatja: %1?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Ugyanezt a kódot mutatja a másik számítógép?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Válassza ott ezt a számítógépet, vagy írja be a címét: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Ha a kódok eltérnek, valaki közbeékelődött: válaszoljon nemmel.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Igen, párosítás</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>A rendszer helymeghatározása</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>A GeoClue csak a várost kérdezi, pontosabbat nem. Ehhez egy internetes szolgáltatásnak elküldheti, milyen hálózatok vannak a közelben. Válasz nélkül az időzóna városa számít.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Az időzóna városa</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Senkit sem kérdez.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Az időzónának nincs városa.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Általam választott hely</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Senkit sem kérdez.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Ki</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Semmi sem követi a napot. A saját időpontok továbbra is működnek.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Hely</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>A napkeltét és napnyugtát követő funkcióknak nagyjából tudniuk kell, hol van. Semmi más nem használja.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Használt hely</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Századfokra kerekítve ide kerül a napkelte és napnyugta idejéért: %1.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>A napkelte és napnyugta idejét ez a számítógép számítja ki. A helyet senkinek sem küldi el.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nincs</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Választott hely: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Választott hely</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Város</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Az időzónák névadó városaiból. Itt ismertek: semmit sem küld el.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Szélesség</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Fok az egyenlítőtől északra. A dél negatív.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Hosszúság</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Fok Greenwichtől keletre. A nyugat negatív.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>A szélesség -90 és 90, a hosszúság -180 és 180 közötti szám.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>A kapcsolatot nem sikerült bekapcsolni: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Ez nem cím (mint 192.168.1.7), és nem is számítógép neve.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Csak a helyi hálózat számítógépe párosítható.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Két percen belül nem jelentkezett másik számítógép.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>A kódot két percen belül nem erősítették meg mindkét számítógépen.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Ott nem válaszol Lumen Desk. Ugyanazon a hálózaton van mindkét számítógép, be van ott kapcsolva a kapcsolat, és átengedi a tűzfal?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>A másik számítógép nem várakozik. Előbb ott válassza: „Várakozás a másik számítógépre”.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>A másik számítógép nem erősítette meg a kódot.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>A hívó nem tartja be a szabályokat. Semmi sem lett párosítva.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Nem található ilyen nevű számítógép.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>d. sz. %1°</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>é. sz. %1°</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>ny. h. %1°</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>k. h. %1°</translation>
    </message>
</context>
</TS>
