<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>Version %1 · Apache License 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache License 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>Puts you in control of your monitors.</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>Show the introduction</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>Open-source notices</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>Rows</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Tiles</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>Wide tiles</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>At the bottom</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>Move %1 forward</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>Move %1 back</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>Reset to the original order</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>Arrange</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Choose what the window shows, and in which order.</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostics</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>No monitor is connected.</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>Export report</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>Written to %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>Every widget is hidden</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>Looking for monitors…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>No supported monitor found</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>Bring back what you need; nothing was lost.</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>This takes a moment.</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>Plug one in and it appears here by itself.</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Arrange</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>DDC/CI is switched on in the monitor's own menu.</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Look again</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>Try it with a simulated monitor</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>Follow the desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>High contrast</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>As the desktop</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Start at login</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>Schedules and shortcuts work from the moment that you log in.</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>Keep running when the window is closed</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>The icon in the tray brings the window back.</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>Starting Lumen Desk again brings the window back.</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>Restore my settings at start</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>Monitors get the values of your last session. Switched off, they keep what they have.</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>Set an Action</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>This flow has every action that the monitor offers.</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>Built-in</translation>
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
        <translation>Connection</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>Transfers</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>Retries</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errors</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>Learnt waits</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>Writes today</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>Circuit breaker</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>asleep</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>gives no answer</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>answers</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>built in</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>simulated</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>closed</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>not told from an equal monitor&apos;s</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>the folder cannot be made</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>The report could not be written to %1: %2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>no reply</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>null reply</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>bad checksum</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>unsupported code</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>malformed reply</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>bus busy</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>no access to the bus</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>monitor gone</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>refused after too many writes</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>display asleep</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>%1 ms before a reply</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>%1 ms after a write</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>open for %1</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>closed; times opened: %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 on %2</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>There is one of that name already.</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>Color mode</translation>
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
        <translation>Open applications</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>Add a flow</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>Rename the flow</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>Please wait…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>Schedule</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1, hour</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1, minute</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>Ends on the next day.</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>Start and end are the same.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repeat</translation>
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
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>Hours</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 is not available in the current color mode.</translation>
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
        <translation>User defined</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>Native</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialogue</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinema</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
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
        <translation>Widgets</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostics</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>Show Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>Welcome to Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Try it</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>Widgets</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>Choose what the window shows, and in which order.</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>Widgets can be arranged while a supported monitor is connected.</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>This session does not let programs change the resolution.</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>This session does not let programs turn the picture.</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>This session does not let programs change the scaling.</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>This session does not tell which application is in front.</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>This session does not let programs move the windows of other applications.</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>This session keeps no window above all others: what comes to the front later may not be darkened.</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>There is no desktop session.</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>In an X11 session it works.</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 leads to another monitor now; nothing was sent to it.</translation>
    </message>
</context>
</TS>
