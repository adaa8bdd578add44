<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>版本 %1 · Apache 许可证 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache 许可证 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>让您掌控自己的显示器。</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>查看介绍</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>开源声明</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>磁贴</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>宽磁贴</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>将 %1 前移</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>将 %1 后移</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>恢复原始顺序</translation>
    </message>
</context>
<context>
    <name>ArrangePage</name>
    <message>
        <source>Arrange</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>选择窗口显示的内容及其顺序。</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>未连接显示器。</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>报告包含此处显示的内容和显示器总线日志，不含序列号、您的姓名和文件夹。</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>导出报告</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>已写入 %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>所有内容均已隐藏</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>正在查找显示器…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>未找到受支持的显示器</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>恢复所需内容即可；没有任何丢失。</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>请稍候。</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>连接后会自动显示在此处。</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>显示器已开启，并通过 USB-C、DisplayPort 或 HDMI 直接连接。</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>已在显示器菜单中开启 DDC/CI。</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>此帐户可使用 I2C 设备：安装设备规则或加入“i2c”组，然后重新登录。</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>再次查找</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>使用模拟显示器试用</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>与桌面相同</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>登录后计划和快捷键立即生效。</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>关闭窗口后继续运行</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>托盘图标可重新打开窗口。</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>再次启动 Lumen Desk 可重新打开窗口。</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>启动时恢复我的设置</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>显示器将采用上次会话的值。关闭后保留其现有值。</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>设置操作</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>此流程已包含显示器提供的所有操作。</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>内置</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>序列号 %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>传输</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>学得的等待</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>今日写入</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>断路器</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>asleep</source>
        <translation>休眠</translation>
    </message>
    <message>
        <source>gives no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>有应答</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>内置</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>模拟</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>闭合</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>无法与相同显示器的屏幕区分</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>无法将报告写入 %1：%2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>空应答</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>校验和错误</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>不支持的代码</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>应答格式错误</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>总线忙</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>无法访问总线</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>显示器已断开</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>写入过多，已拒绝</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>屏幕休眠</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>应答前 %1 毫秒</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>写入后 %1 毫秒</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>对 %1 已断开</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>闭合；断开次数：%1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>LuHelpButton</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>该名称已存在。</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>LuPopupController</name>
    <message>
        <source>Color mode</source>
        <translation>色彩模式</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
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
        <translation>打开应用</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>添加流程</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>重命名流程</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>请稍候…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1，时</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1，分</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>次日结束。</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>开始与结束相同。</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>LuTimeButton</name>
    <message>
        <source>Hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 在当前色彩模式下不可用。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>显示器</translation>
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
        <translation>自定义</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>原生</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>对话</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>影院</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>游戏</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>录音室</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>小组件</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>两台计算机</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>显示 Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>欢迎使用 Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>试用</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Widgets</source>
        <translation>小组件</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>选择窗口显示的内容及其顺序。</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>连接受支持的显示器后即可排列小组件。</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>此会话不允许程序更改分辨率。</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>此会话不允许程序旋转画面。</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>此会话不允许程序更改缩放。</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>当其他窗口在前面时,此会话不会把按键交给程序:快捷键只在 Lumen Desk 的窗口中有效。</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>此会话不告知哪个应用程序在前面。</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>此会话不允许程序移动其他应用程序的窗口。</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>此会话不允许程序按下复制和粘贴键:第二剪贴板无法使用。</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>此会话不告知指针的位置:键盘和鼠标不会在屏幕边缘切换。</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>找不到声音输出:系统音量和输出的选择需要 PulseAudio 或 PipeWire。</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>此桌面没有合成器:画面无法调得比显示器自身的亮度更暗。</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>此会话不能让窗口保持在所有窗口之上:之后来到前面的内容可能不会变暗。</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>没有桌面会话。</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>在 X11 会话中可以使用。</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>没有使用 %1 的权限，因此无法控制其显示器。您的账户已在 %2 组中：请注销后重新登录。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>没有使用 %1 的权限，因此无法控制其显示器。本程序的 udev 规则 %2 尚未安装：请将其安装到 %3，然后重新启动计算机。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>没有使用 %1 的权限，因此无法控制其显示器。本程序的 udev 规则 %2 尚未安装：请将其安装到 %3 并重新启动计算机，或将您的账户加入 %4 组并重新登录。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>没有使用 %1 的权限，因此无法控制其显示器。udev 规则已安装，但此会话在这台计算机上没有席位：请将您的账户加入 %2 组并重新登录。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>没有使用 %1 的权限，因此无法控制其显示器。udev 规则已安装但未生效：请以 root 身份运行 "udevadm trigger --subsystem-match=i2c-dev"，或重新启动计算机。</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>系统中没有 I2C 设备文件，因此无法控制外接显示器。请加载内核模块 i2c-dev：以 root 身份运行 "modprobe i2c-dev"，或安装本程序的 modules-load.d/lumen-desk.conf 并重新启动计算机。</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 现在连接到另一台显示器；未向其发送任何内容。</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>两台计算机</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>共用一台显示器的两台计算机可以在屏幕边缘交接键盘和鼠标。连接后,它们知道指针在哪一方,指针从离开处进入。</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>与第二台计算机的连接</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>只有您配对的计算机才能在本地网络中加密连接。它只知道指针在哪里:不发送按键、文字或文件。开启期间,网络可以看到此计算机的名称。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>它没有本地网络地址。</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>已配对的计算机</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>重新配对</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>配对计算机</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>没有名称的计算机</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>上次地址:%1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>对方未配对</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>它有应答,但已不认识此计算机。请将两台重新配对。</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>只要它在同一网络中运行,就会自动找到。如果它换了地址,可以在这里输入。</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>其他地址</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>忘记</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>忘记 %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>在重新配对之前,两台计算机不再连接。</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
</context>
<context>
    <name>ComputerChoice</name>
    <message>
        <source>1. On one computer</source>
        <translation>1. 在一台计算机上</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>它会等待一次呼叫,为时两分钟。</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>等待另一台计算机</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. 在另一台计算机上</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>输入正在等待的计算机的地址。如果 Avahi 服务在运行,会自动找到它。</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>选择正在等待的计算机,或输入它的地址。</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>附近没有计算机开启此功能。您也可以输入它的地址。</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>配对</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>与 %1 配对</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>另一台计算机的地址</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>正在等待另一台计算机</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>正在呼叫另一台计算机</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>现在请在另一台计算机上确认代码</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1 显示的代码相同吗?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>另一台计算机显示的代码相同吗?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>在那里选择此计算机,或输入它的地址:%1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>如果代码不同,说明有人介入其中:请回答否。</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Yes, pair</source>
        <translation>是,配对</translation>
    </message>
</context>
<context>
    <name>AddressLine</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>系统的位置服务</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>只向 GeoClue 询问您所在的城市。为此它可能会把您周围有哪些网络发送给互联网上的服务。没有应答时使用时区的城市。</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>时区的城市</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1。不询问任何人。</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>您的时区没有城市。</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>我选择的地点</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>不询问任何人。</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>不跟随太阳。您自己设置的时间仍然有效。</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>跟随日出和日落的功能需要大致知道您在哪里。其他功能不使用它。</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>使用中的位置</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>为获取日出和日落时间,它会四舍五入到百分之一度后发送给 %1。</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>日出和日落时间在此计算机上计算。位置不会发送给任何人。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>选择的地点:%1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>选择的地点</translation>
    </message>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>来自为时区命名的城市。它们在本机已知:不发送任何内容。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>赤道以北的度数。南为负。</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>格林尼治以东的度数。西为负。</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>纬度是 -90 到 90 的数,经度是 -180 到 180 的数。</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>无法开启连接:%1。</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>这既不是地址(如 192.168.1.7),也不是计算机名称。</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>只能配对本地网络中的计算机。</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>两分钟内没有其他计算机呼叫。</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>两分钟内未在两台计算机上确认代码。</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>那里没有 Lumen Desk 应答。两台计算机是否在同一网络、那里的连接是否已开启、防火墙是否放行?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>另一台计算机没有在等待。请先在那里选择“等待另一台计算机”。</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>另一台计算机没有确认代码。</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>呼叫方不遵守规则。没有配对。</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>找不到此名称的计算机。</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>南纬 %1°</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>北纬 %1°</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>西经 %1°</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>东经 %1°</translation>
    </message>
</context>
</TS>
