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
    <message>
        <source>Location</source>
        <translation>Местоположение</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Два компьютера</translation>
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
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Два компьютера</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Два компьютера с общим монитором могут передавать друг другу клавиатуру и мышь у края экрана. Соединённые, они знают, у кого указатель, и он входит там, где вышел.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Связь со вторым компьютером</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Подключиться может только связанный компьютер, с шифрованием и в локальной сети. Он узнаёт, где указатель: клавиши, тексты и файлы не отправляются. Пока связь включена, сеть видит имя этого компьютера.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>У него нет адреса в локальной сети.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Связанный компьютер</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Связать заново</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Связать компьютер</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Компьютер без имени</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Последний адрес: %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выключено</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключён</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Там не связан</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>Он отвечает, но больше не знает этот компьютер. Свяжите их заново.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>Он найдётся сам, как только заработает в той же сети. Если у него другой адрес, его можно ввести здесь.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Другой адрес</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Забыть</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Забыть %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>Компьютеры не соединятся, пока их не свяжут заново.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Оставить</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. На одном компьютере</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>Он две минуты ждёт одного вызова.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Ждать другой компьютер</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. На другом компьютере</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Введите адрес ожидающего компьютера. Где работает служба Avahi, он найдётся сам.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Выберите ожидающий компьютер или введите его адрес.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>Ни на одном компьютере рядом это не включено. Можно также ввести его адрес.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Связать</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Связать с %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Адрес другого компьютера</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Ожидание другого компьютера</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Вызов другого компьютера</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Теперь подтвердите код на другом компьютере</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1 показывает тот же код?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Другой компьютер показывает тот же код?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Выберите там этот компьютер или введите его адрес: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>Если коды различаются, между вами кто-то есть: ответьте «нет».</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Да, связать</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Служба геолокации системы</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>У GeoClue спрашивается ваш город и ничего точнее. Для этого она может сообщить службе в Интернете, какие сети вокруг вас. Без ответа берётся город часового пояса.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>Город часового пояса</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Никого не спрашивают.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>У вашего часового пояса нет города.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>Место по моему выбору</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Никого не спрашивают.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выключено</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Ничто не следует за солнцем. Время, заданное вами, действует по-прежнему.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Местоположение</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Функциям, которые следуют за восходом и закатом, нужно примерно знать, где вы. Больше ничто это не использует.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Используемое положение</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>Отправляется, округлённое до сотых долей градуса, на %1 ради времени восхода и заката.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>Время восхода и заката вычисляется на этом компьютере. Положение никому не отправляется.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Выбранное место: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Выбранное место</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Город</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Из городов, по которым названы часовые пояса. Они известны здесь: ничего не отправляется.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Широта</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Градусы к северу от экватора. Юг отрицателен.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Долгота</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Градусы к востоку от Гринвича. Запад отрицателен.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>Широта — число от -90 до 90, долгота — от -180 до 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>Не удалось включить связь: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>Это не адрес вида 192.168.1.7 и не имя компьютера.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Связать можно только компьютер вашей локальной сети.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>За две минуты не отозвался ни один другой компьютер.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>Код не был подтверждён на обоих компьютерах за две минуты.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>Там не отвечает ни один Lumen Desk. Оба ли компьютера в одной сети, включена ли там связь и пропускает ли её брандмауэр?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>Другой компьютер не ждёт. Сначала выберите там «Ждать другой компьютер».</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>Другой компьютер не подтвердил код.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>Вызвавший не соблюдает правила. Ничего не связано.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>Компьютер с таким именем не найден.</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>%1° ю. ш.</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>%1° с. ш.</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>%1° з. д.</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>%1° в. д.</translation>
    </message>
</context>
</TS>
