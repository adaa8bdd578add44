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
</TS>
