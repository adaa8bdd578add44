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
</TS>
