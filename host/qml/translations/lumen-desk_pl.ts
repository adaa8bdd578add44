<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Wersja %1 · Licencja Apache 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Licencja Apache 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Daje kontrolę nad monitorami.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Pokaż wprowadzenie</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Informacje o otwartym kodzie</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kafelki</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Szerokie kafelki</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Na dole</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Przesuń %1 do przodu</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Przesuń %1 do tyłu</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Przywróć kolejność</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Rozmieść</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Wybierz, co pokazuje okno i w jakiej kolejności.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostyka</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Nie podłączono monitora.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Raport zawiera pokazane tu dane i dziennik magistral. Numery seryjne, nazwisko i foldery są pomijane.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Eksportuj raport</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Zapisano w %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Wszystko jest ukryte</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Szukanie monitorów…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Nie znaleziono obsługiwanego monitora</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Przywróć, czego potrzebujesz; nic nie zginęło.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>To chwilę potrwa.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Podłącz monitor, a pojawi się tu sam.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Rozmieść</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Monitor jest włączony i podłączony bezpośrednio przez USB-C, DisplayPort lub HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI jest włączone w menu monitora.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>To konto może używać urządzeń I2C: zainstaluj regułę lub dołącz do grupy „i2c” i zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Szukaj ponownie</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Wypróbuj z symulowanym monitorem</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Jak pulpit</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Wysoki kontrast</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Motyw</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Jak pulpit</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Uruchamiaj po zalogowaniu</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Harmonogramy i skróty działają od razu po zalogowaniu.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Działaj dalej po zamknięciu okna</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Ikona w zasobniku przywraca okno.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Ponowne uruchomienie Lumen Desk przywraca okno.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Przywracaj ustawienia przy starcie</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Monitory dostają wartości z ostatniej sesji. Po wyłączeniu zachowują własne.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Ustaw akcję</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>Ten przepływ ma wszystkie akcje monitora.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Wbudowany</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>Nr seryjny %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transfery</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Ponowienia</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Błędy</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Wyuczone oczekiwania</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Zapisy dzisiaj</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Bezpiecznik</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>uśpiony</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>nie odpowiada</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>odpowiada</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>wbudowany</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>symulowany</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>zamknięty</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Ekran</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>nie można odróżnić od ekranu takiego samego monitora</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>nie można utworzyć folderu</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Nie można zapisać raportu w %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>brak odpowiedzi</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>pusta odpowiedź</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>błędna suma kontrolna</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>nieobsługiwany kod</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>nieprawidłowa odpowiedź</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>magistrala zajęta</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>brak dostępu do magistrali</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor zniknął</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>anulowano</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>odrzucono po zbyt wielu zapisach</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>ekran uśpiony</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms przed odpowiedzią</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms po zapisie</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>otwarty dla %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>zamknięty; liczba otwarć: %1</translation>
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
        <translation>Pomoc</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Taka nazwa już istnieje.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Tryb kolorów</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Dźwięk</translation>
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
        <translation>Otwórz aplikacje</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Dodaj przepływ</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Zmień nazwę przepływu</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Proszę czekać…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Harmonogram</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, godzina</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minuta</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Kończy się następnego dnia.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Początek i koniec są takie same.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Powtarzaj</translation>
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
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Godziny</translation>
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
        <translation>%1 nie jest dostępne w bieżącym trybie kolorów.</translation>
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
        <translation>Własne</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Natywny</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialogi</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muzyka</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gra</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Elementy</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostyka</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Położenie</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Dwa komputery</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Pokaż Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Witaj w Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Wypróbuj</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Elementy</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Wybierz, co pokazuje okno i w jakiej kolejności.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Elementy można rozmieścić, gdy podłączony jest obsługiwany monitor.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Ta sesja nie pozwala programom zmieniać rozdzielczości.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Ta sesja nie pozwala programom obracać obrazu.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Ta sesja nie pozwala programom zmieniać skalowania.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Ta sesja nie przekazuje programom klawiszy, gdy inne okno jest z przodu: skróty działają tylko w oknach Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Ta sesja nie podaje, która aplikacja jest z przodu.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Ta sesja nie pozwala programom przesuwać okien innych aplikacji.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Ta sesja nie pozwala programom naciskać klawiszy kopiowania i wklejania: drugi schowek nie działa.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Ta sesja nie podaje, gdzie jest wskaźnik: klawiatura i mysz nie przełączają się na krawędzi ekranu.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Nie znaleziono wyjścia dźwięku: głośność systemu i wybór wyjścia wymagają PulseAudio lub PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Ten pulpit nie ma kompozytora: obrazu nie można przyciemnić bardziej, niż pozwala jasność monitora.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Ta sesja nie utrzymuje żadnego okna nad wszystkimi innymi: to, co później znajdzie się z przodu, może nie być przyciemnione.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Nie ma sesji pulpitu.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>W sesji X11 to działa.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Brak uprawnień do %1, dlatego nie można sterować jego monitorem. Konto należy już do grupy %2: wyloguj się i zaloguj ponownie.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Brak uprawnień do %1, dlatego nie można sterować jego monitorem. Reguła udev %2 tego programu nie jest zainstalowana: zainstaluj ją w %3 i uruchom komputer ponownie.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Brak uprawnień do %1, dlatego nie można sterować jego monitorem. Reguła udev %2 tego programu nie jest zainstalowana: zainstaluj ją w %3 i uruchom komputer ponownie albo dodaj konto do grupy %4 i zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Brak uprawnień do %1, dlatego nie można sterować jego monitorem. Reguła udev jest zainstalowana, ale ta sesja nie ma stanowiska przy tym komputerze: dodaj konto do grupy %2 i zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Brak uprawnień do %1, dlatego nie można sterować jego monitorem. Reguła udev jest zainstalowana, ale nie działa: uruchom "udevadm trigger --subsystem-match=i2c-dev" jako root albo uruchom komputer ponownie.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>System nie udostępnia plików urządzeń I2C, dlatego nie można sterować monitorami zewnętrznymi. Załaduj moduł jądra i2c-dev: uruchom "modprobe i2c-dev" jako root albo zainstaluj modules-load.d/lumen-desk.conf tego programu i uruchom komputer ponownie.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 prowadzi teraz do innego monitora; nic do niego nie wysłano.</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Dwa komputery</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Dwa komputery przy jednym monitorze mogą przekazywać sobie klawiaturę i mysz na krawędzi ekranu. Połączone uzgadniają, kto ma wskaźnik, a ten wchodzi tam, gdzie wyszedł.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Połączenie z drugim komputerem</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Połączyć się może tylko sparowany komputer, z szyfrowaniem i w sieci lokalnej. Dowiaduje się, gdzie jest wskaźnik: klawisze, teksty ani pliki nie są wysyłane. Gdy jest włączone, sieć widzi nazwę tego komputera.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>Nie ma adresu w sieci lokalnej.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Sparowany komputer</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Sparuj ponownie</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Sparuj komputer</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Komputer bez nazwy</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Ostatnio pod %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączony</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Tam niesparowany</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Szukanie</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Odpowiada, ale nie zna już tego komputera. Sparuj je ponownie.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Odnajdzie się sam, gdy będzie działać w tej samej sieci. Jeśli ma inny adres, możesz go tu wpisać.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Inny adres</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Zapomnij</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Zapomnieć %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Komputery nie połączą się, dopóki nie zostaną ponownie sparowane.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Zachowaj</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. Na jednym komputerze</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Czeka dwie minuty na jedno połączenie.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Czekaj na drugi komputer</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. Na drugim komputerze</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Wpisz adres czekającego komputera. Gdzie działa usługa Avahi, znajdzie się sam.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Wybierz czekający komputer lub wpisz jego adres.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Żaden komputer w pobliżu nie ma tego włączonego. Możesz też wpisać jego adres.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Sparuj</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Sparuj z %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Adres drugiego komputera</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Czekanie na drugi komputer</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Łączenie z drugim komputerem</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Teraz potwierdź kod na drugim komputerze</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Czy %1 pokazuje ten sam kod?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Czy drugi komputer pokazuje ten sam kod?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Wybierz tam ten komputer lub wpisz jego adres: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Jeśli kody się różnią, ktoś jest pomiędzy: odpowiedz nie.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Tak, sparuj</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Usługa lokalizacji systemu</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue jest pytany o miasto, nic dokładniejszego. Aby je znaleźć, może wysłać do usługi w Internecie, jakie sieci są wokół. Bez odpowiedzi używane jest miasto strefy czasowej.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Miasto strefy czasowej</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Nikt nie jest pytany.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Twoja strefa czasowa nie ma miasta.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Miejsce, które wybiorę</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Nikt nie jest pytany.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nic nie podąża za słońcem. Godziny ustawione samodzielnie nadal działają.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Położenie</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Funkcje podążające za wschodem i zachodem słońca muszą mniej więcej wiedzieć, gdzie jesteś. Nic innego tego nie używa.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Używane położenie</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Jest wysyłane, zaokrąglone do setnych stopnia, do %1 dla godzin wschodu i zachodu słońca.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Godziny wschodu i zachodu słońca są obliczane na tym komputerze. Położenie nie jest nikomu wysyłane.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Wybrane miejsce: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Wybrane miejsce</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Miasto</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Z miast, od których nazwano strefy czasowe. Są znane tutaj: nic nie jest wysyłane.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Stopnie na północ od równika. Południe jest ujemne.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Długość</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Stopnie na wschód od Greenwich. Zachód jest ujemny.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Szerokość to liczba od -90 do 90, długość od -180 do 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Nie udało się włączyć połączenia: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>To nie jest adres, taki jak 192.168.1.7, ani nazwa komputera.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Sparować można tylko komputer z sieci lokalnej.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>W ciągu dwóch minut nie zgłosił się inny komputer.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Kod nie został potwierdzony na obu komputerach w ciągu dwóch minut.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Nie odpowiada tam żaden Lumen Desk. Czy oba komputery są w tej samej sieci, czy połączenie jest tam włączone i czy przepuszcza je zapora?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>Drugi komputer nie czeka. Wybierz tam najpierw „Czekaj na drugi komputer”.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>Drugi komputer nie potwierdził kodu.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Dzwoniący nie trzyma się zasad. Nic nie sparowano.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Nie znaleziono komputera o tej nazwie.</translation>
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
        <translation>%1° E</translation>
    </message>
</context>
</TS>
