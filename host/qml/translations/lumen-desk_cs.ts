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
    <message>
        <source>Location</source>
        <translation>Poloha</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Dva počítače</translation>
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
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Dva počítače</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Dva počítače u jednoho monitoru si mohou na okraji obrazovky předat klávesnici a myš. Spojené se shodnou, kdo má ukazatel, a ten vstoupí tam, kudy odešel.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Spojení s druhým počítačem</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Připojit se může jen spárovaný počítač, šifrovaně a v místní síti. Dozví se, kde je ukazatel: klávesy, texty ani soubory se neposílají. Dokud je zapnuto, síť vidí název tohoto počítače.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Nemá adresu v místní síti.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Spárovaný počítač</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Spárovat znovu</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Spárovat počítač</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Počítač bez názvu</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Naposledy na %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Připojeno</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Tam nespárováno</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Hledá se</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Odpovídá, ale tento počítač už nezná. Spárujte je znovu.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Najde se sám, jakmile poběží ve stejné síti. Má-li jinou adresu, můžete ji zadat zde.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Jiná adresa</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Zapomenout</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Připojit</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Zapomenout %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Počítače se nepřipojí, dokud je znovu nespárujete.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Ponechat</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Na jednom počítači</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Dvě minuty čeká na jedno volání.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Čekat na druhý počítač</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Na druhém počítači</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Zadejte adresu čekajícího počítače. Kde běží služba Avahi, najde se sám.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Vyberte čekající počítač nebo zadejte jeho adresu.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Žádný počítač v okolí to nemá zapnuto. Můžete také zadat jeho adresu.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Spárovat</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Spárovat s %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Adresa druhého počítače</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Čeká se na druhý počítač</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Volá se druhý počítač</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Nyní potvrďte kód na druhém počítači</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Ukazuje %1 stejný kód?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Ukazuje druhý počítač stejný kód?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Vyberte tam tento počítač nebo zadejte jeho adresu: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Liší-li se kódy, je někdo mezi vámi: odpovězte ne.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Ano, spárovat</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Služba určování polohy systému</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue se zeptá na vaše město, nic přesnějšího. Kvůli tomu může službě na internetu sdělit, jaké sítě jsou kolem vás. Bez odpovědi se použije město časového pásma.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Město časového pásma</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Nikdo se neptá.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Vaše časové pásmo nemá město.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Místo, které zvolím</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Nikdo se neptá.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nic nesleduje slunce. Časy, které nastavíte sami, fungují dál.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Poloha</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Funkce, které sledují východ a západ slunce, musí přibližně vědět, kde jste. Nic jiného to nepoužívá.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Použitá poloha</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Posílá se, zaokrouhlená na setiny stupně, na %1 kvůli časům východu a západu slunce.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Časy východu a západu slunce se počítají na tomto počítači. Poloha se nikomu neposílá.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádná</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Zvolené místo: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Zvolené místo</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Město</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Z měst, podle nichž se jmenují časová pásma. Jsou známa zde: nic se neposílá.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Šířka</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Stupně severně od rovníku. Jih je záporný.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Délka</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Stupně východně od Greenwiche. Západ je záporný.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Šířka je číslo od -90 do 90, délka od -180 do 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Spojení se nepodařilo zapnout: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Není to adresa, jako 192.168.1.7, ani název počítače.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Spárovat lze jen počítač z vaší místní sítě.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>Do dvou minut se žádný jiný počítač neozval.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Kód nebyl do dvou minut potvrzen na obou počítačích.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Neodpovídá tam žádný Lumen Desk. Jsou oba počítače ve stejné síti, je tam spojení zapnuté a propouští je firewall?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>Druhý počítač nečeká. Zvolte tam nejprve „Čekat na druhý počítač“.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>Druhý počítač kód nepotvrdil.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Volající nedodržuje pravidla. Nic nebylo spárováno.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Počítač tohoto názvu nebyl nalezen.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>%1° j. š.</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>%1° s. š.</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>%1° z. d.</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° v. d.</translation>
    </message>
</context>
</TS>
