<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Версия %1 · Лицензия Apache 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Лицензия Apache 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Управление вашими мониторами.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Показать введение</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Открытое ПО</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Плитки</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Широкие плитки</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>Внизу</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Переместить «%1» вперёд</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Переместить «%1» назад</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Исходный порядок</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Упорядочить</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Выберите, что и в каком порядке показывает окно.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Диагностика</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>Монитор не подключён.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>Отчёт содержит показанное здесь и журнал шин. Серийные номера, ваше имя и папки не включаются.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Экспорт отчёта</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Сохранено в %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Всё скрыто</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Поиск мониторов…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>Поддерживаемый монитор не найден</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Верните нужное: ничего не потеряно.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>Это займёт немного времени.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Подключите монитор, и он появится здесь сам.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Упорядочить</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>Монитор включён и подключён напрямую по USB-C, DisplayPort или HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI включён в меню монитора.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>Учётная запись имеет доступ к устройствам I2C: установите правило или вступите в группу «i2c» и войдите снова.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Искать снова</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Попробовать с виртуальным монитором</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Как на рабочем столе</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Высокий контраст</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Как на рабочем столе</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Запускать при входе</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Расписания и сочетания клавиш работают сразу после входа.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Работать после закрытия окна</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>Окно вернёт значок на панели.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Повторный запуск Lumen Desk вернёт окно.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Восстанавливать настройки при запуске</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Мониторы получают значения прошлого сеанса. Если выключено, сохраняют свои.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Задать действие</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>В этом сценарии есть все действия монитора.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Встроенный</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>С/н %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Передачи</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Повторы</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Ошибки</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Изученные паузы</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Записей сегодня</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Предохранитель</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>спит</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>не отвечает</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>отвечает</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>встроен</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>имитация</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>замкнут</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>неотличим от экрана такого же монитора</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>не удалось создать папку</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>Не удалось записать отчёт в %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>нет ответа</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>пустой ответ</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>неверная контрольная сумма</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>неподдерживаемый код</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>искажённый ответ</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>шина занята</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>нет доступа к шине</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>монитор исчез</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>отменено</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>отклонено после слишком многих записей</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>экран спит</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 мс до ответа</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 мс после записи</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>разомкнут для %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>замкнут; размыканий: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 на %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>Такое имя уже есть.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Цветовой режим</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Звук</translation>
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
        <translation>Открыть приложения</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Добавить сценарий</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Переименовать сценарий</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Подождите…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Расписание</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, часы</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, минуты</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Конец</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Заканчивается на следующий день.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Начало и конец совпадают.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Повтор</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Минуты</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1: недоступно в текущем цветовом режиме.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
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
        <translation>Монитор</translation>
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
        <translation>Пользовательская</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Собственный</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Диалог</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Кино</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Игра</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Студия</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Элементы</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Диагностика</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Показать Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Добро пожаловать в Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Попробовать</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Элементы</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Выберите, что и в каком порядке показывает окно.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Элементы можно упорядочить, когда подключён поддерживаемый монитор.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>Этот сеанс не позволяет программам менять разрешение.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>Этот сеанс не позволяет программам поворачивать изображение.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>Этот сеанс не позволяет программам менять масштаб.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>Этот сеанс не передаёт программам клавиши, пока впереди другое окно: сочетания работают только в окнах Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>Этот сеанс не сообщает, какое приложение впереди.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>Этот сеанс не позволяет программам перемещать окна других приложений.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>Этот сеанс не позволяет программам нажимать клавиши копирования и вставки: второй буфер обмена не работает.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>Этот сеанс не сообщает, где указатель: клавиатура и мышь не переключаются у края экрана.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>Звуковой выход не найден: для громкости системы и выбора выхода нужен PulseAudio или PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>У этого рабочего стола нет композитора: изображение нельзя затемнить сильнее яркости самого монитора.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>Этот сеанс не удерживает окно поверх всех остальных: то, что позже окажется впереди, может не затемняться.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>Сеанса рабочего стола нет.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>В сеансе X11 это работает.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>Нет прав на использование %1, поэтому его монитором нельзя управлять. Ваша учётная запись уже в группе %2: выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>Нет прав на использование %1, поэтому его монитором нельзя управлять. Правило udev %2 этой программы не установлено: установите его в %3 и перезагрузите компьютер.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>Нет прав на использование %1, поэтому его монитором нельзя управлять. Правило udev %2 этой программы не установлено: установите его в %3 и перезагрузите компьютер либо добавьте свою учётную запись в группу %4 и войдите снова.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>Нет прав на использование %1, поэтому его монитором нельзя управлять. Правило udev установлено, но у этого сеанса нет рабочего места за этим компьютером: добавьте свою учётную запись в группу %2 и войдите снова.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>Нет прав на использование %1, поэтому его монитором нельзя управлять. Правило udev установлено, но не действует: выполните "udevadm trigger --subsystem-match=i2c-dev" от имени root или перезагрузите компьютер.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>В системе нет файлов устройств I2C, поэтому внешними мониторами нельзя управлять. Загрузите модуль ядра i2c-dev: выполните "modprobe i2c-dev" от имени root или установите modules-load.d/lumen-desk.conf этой программы и перезагрузите компьютер.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 теперь ведёт к другому монитору; ему ничего не отправлено.</translation>
    </message>
</context>
</TS>
