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
    <message>
        <source>Location</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>Two computers</translation>
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
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>Two computers</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>Connection to a second computer</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>It has no address on a local network.</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>Paired computer</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>Pair again</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>Pair a computer</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>Computer without a name</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>Last met at %1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>Not paired there</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Searching</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>It answers, and does not know this computer any more. Pair the two anew.</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Another address</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Forget</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>Forget %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>The two do not connect any more until they are paired again.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Keep</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. On one computer</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>It waits for two minutes, for one call.</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>Wait for the other computer</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. On the other computer</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>Choose the computer that waits, or type its address.</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>No computer nearby has this switched on. You can also type its address.</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>Pair</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>Pair with %1</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>Address of the other computer</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>Waiting for the other computer</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>Calling the other computer</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>Now confirm the code on the other computer</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>Does %1 show the same code?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>Does the other computer show the same code?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>Choose this computer there, or type its address: %1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>If the codes differ, somebody else is in between: answer no.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>Yes, pair</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>Location service of the system</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>City of the time zone</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1. Nobody is asked.</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>Your time zone has no city.</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>A place that I choose</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>Nobody is asked.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>Nothing follows the sun. Times that you set yourself still work.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>Position in use</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>Chosen place: %1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>Chosen place</translation>
    </message>
    <message>
        <source>City</source>
        <translation>City</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>Of the cities that name a time zone. They are known here: nothing is sent.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>Degrees, north of the equator. South is negative.</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>Degrees, east of Greenwich. West is negative.</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>The connection could not be switched on: %1.</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>This is neither an address, such as 192.168.1.7, nor the name of a computer.</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>Only a computer of your local network can be paired.</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>No other computer has called within two minutes.</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>The code was not confirmed on both computers within two minutes.</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>The other computer is not waiting. Choose "Wait for the other computer" there first.</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>The other computer did not confirm the code.</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>What has called does not keep to the rules. Nothing was paired.</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>No computer of this name was found.</translation>
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
