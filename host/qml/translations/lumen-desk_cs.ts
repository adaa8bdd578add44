<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Verze %1 · Apache License 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache License 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Dává vám kontrolu nad vašimi monitory.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Zobrazit úvod</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Oznámení o open source</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Řádky</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Široké dlaždice</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Dole</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Posunout %1 dopředu</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Posunout %1 dozadu</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Obnovit původní pořadí</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Uspořádat</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Vyberte, co okno ukazuje a v jakém pořadí.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostika</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Není připojen žádný monitor.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Zpráva obsahuje zde zobrazené údaje a záznam sběrnic monitorů. Sériová čísla, vaše jméno a složky v ní nejsou.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Exportovat zprávu</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Zapsáno do %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Všechny prvky jsou skryté</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Hledání monitorů…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Nenalezen podporovaný monitor</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Vraťte, co potřebujete; nic se neztratilo.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Chvíli to potrvá.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Připojte monitor a sám se zde objeví.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Uspořádat</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Monitor je zapnutý a připojený přímo přes USB-C, DisplayPort nebo HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI je zapnuto v nabídce monitoru.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Tento účet smí používat zařízení I2C: nainstalujte pravidlo zařízení nebo vstupte do skupiny „i2c“ a znovu se přihlaste.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Hledat znovu</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Vyzkoušet se simulovaným monitorem</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Podle plochy</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Světlý</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tmavý</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Vysoký kontrast</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Motiv</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Podle plochy</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Spustit po přihlášení</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Plány a zkratky fungují hned po přihlášení.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Po zavření okna běžet dál</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Okno vrátí ikona na liště.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Okno vrátí nové spuštění Lumen Desk.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Při spuštění obnovit nastavení</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Monitory dostanou hodnoty poslední relace. Při vypnutí si nechají své.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Nastavit akci</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Tento flow má všechny akce, které monitor nabízí.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Vestavěný</translation>
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
        <translation>Připojení</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Přenosy</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Opakování</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Chyby</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Naučené čekání</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Zápisy dnes</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Pojistka</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>neznámé</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>spí</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>neodpovídá</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>odpovídá</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>vestavěný</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulovaný</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>zavřená</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Obrazovka</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>nelze odlišit od stejného monitoru</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>složku nelze vytvořit</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Zprávu nelze zapsat do %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>žádná odpověď</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>prázdná odpověď</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>chybný kontrolní součet</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>nepodporovaný kód</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>poškozená odpověď</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>sběrnice zaneprázdněna</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>bez přístupu ke sběrnici</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor zmizel</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>zrušeno</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>odmítnuto po příliš mnoha zápisech</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>displej spí</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms před odpovědí</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms po zápisu</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>rozpojen pro %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>sepnut; počet rozpojení: %1</translation>
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
        <translation>Nápověda</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Tento název už existuje.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Režim barev</translation>
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
        <translation>Otevřít aplikace</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Přidat flow</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Přejmenovat flow</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Čekejte prosím…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Plán</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, hodina</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minuta</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Končí následující den.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Začátek a konec jsou stejné.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Opakovat</translation>
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
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Hodiny</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuty</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 není v aktuálním režimu barev k dispozici.</translation>
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
        <translation>Vlastní</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Nativní</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standardní</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Hudba</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Hra</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Uživatel</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Prvky</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostika</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Pokročilé</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Zobrazit Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Vítejte v Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Vyzkoušet</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Prvky</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Vyberte, co okno ukazuje a v jakém pořadí.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Prvky lze uspořádat, když je připojen podporovaný monitor.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Tato relace nedovoluje programům měnit rozlišení.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Tato relace nedovoluje programům otáčet obraz.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Tato relace nedovoluje programům měnit měřítko.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Tato relace nepředává programům klávesy, když je vpředu jiné okno: zkratky fungují jen v oknech Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Tato relace nesděluje, která aplikace je vpředu.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Tato relace nedovoluje programům přesouvat okna jiných aplikací.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Tato relace nedovoluje programům stisknout klávesy pro kopírování a vložení: druhá schránka nefunguje.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Tato relace nesděluje, kde je ukazatel: klávesnice a myš se na okraji obrazovky nepřepnou.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Nebyl nalezen žádný zvukový výstup: hlasitost systému a volba výstupu potřebují PulseAudio nebo PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Tuto plochu nic neskládá: obraz nelze ztmavit více, než dovolí jas monitoru.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Tato relace neudrží žádné okno nad všemi ostatními: co se později dostane dopředu, nemusí být ztmaveno.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Neběží žádná relace plochy.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>V relaci X11 to funguje.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Chybí oprávnění k %1, proto nelze jeho monitor ovládat. Váš účet už je ve skupině %2: odhlaste se a znovu přihlaste.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Chybí oprávnění k %1, proto nelze jeho monitor ovládat. Pravidlo udev %2 tohoto programu není nainstalováno: nainstalujte je do %3 a restartujte počítač.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Chybí oprávnění k %1, proto nelze jeho monitor ovládat. Pravidlo udev %2 tohoto programu není nainstalováno: nainstalujte je do %3 a restartujte počítač, nebo přidejte svůj účet do skupiny %4 a znovu se přihlaste.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Chybí oprávnění k %1, proto nelze jeho monitor ovládat. Pravidlo udev je nainstalováno, ale tato relace nepatří k žádnému pracovišti tohoto počítače: přidejte svůj účet do skupiny %2 a znovu se přihlaste.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Chybí oprávnění k %1, proto nelze jeho monitor ovládat. Pravidlo udev je nainstalováno, ale neplatí: spusťte jako root "udevadm trigger --subsystem-match=i2c-dev" nebo restartujte počítač.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>Systém neposkytuje soubory zařízení I2C, proto nelze ovládat externí monitory. Zaveďte modul jádra i2c-dev: spusťte jako root "modprobe i2c-dev", nebo nainstalujte modules-load.d/lumen-desk.conf tohoto programu a restartujte počítač.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 teď vede k jinému monitoru; nic mu nebylo odesláno.</translation>
    </message>
</context>
</TS>
