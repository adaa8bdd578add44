<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Version %1 · Apache License 2.0</source>
        <translation>版本 %1 · Apache 授權 2.0</translation>
    </message>
    <message>
        <source>Apache License 2.0</source>
        <translation>Apache 授權 2.0</translation>
    </message>
    <message>
        <source>Puts you in control of your monitors.</source>
        <translation>讓您掌控自己的顯示器。</translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation>檢視介紹</translation>
    </message>
    <message>
        <source>Open-source notices</source>
        <translation>開放原始碼聲明</translation>
    </message>
</context>
<context>
    <name>ArrangeList</name>
    <message>
        <source>Rows</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>動態磚</translation>
    </message>
    <message>
        <source>Wide tiles</source>
        <translation>寬動態磚</translation>
    </message>
    <message>
        <source>At the bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Move %1 forward</source>
        <translation>將 %1 前移</translation>
    </message>
    <message>
        <source>Move %1 back</source>
        <translation>將 %1 後移</translation>
    </message>
    <message>
        <source>Reset to the original order</source>
        <translation>還原原始順序</translation>
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
        <translation>選擇視窗顯示的內容及其順序。</translation>
    </message>
</context>
<context>
    <name>DiagnosticsPage</name>
    <message>
        <source>Diagnostics</source>
        <translation>診斷</translation>
    </message>
    <message>
        <source>No monitor is connected.</source>
        <translation>未連接顯示器。</translation>
    </message>
    <message>
        <source>The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.</source>
        <translation>報告包含此處顯示的內容和顯示器匯流排記錄，不含序號、您的姓名和資料夾。</translation>
    </message>
    <message>
        <source>Export report</source>
        <translation>匯出報告</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>已寫入 %1</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Every widget is hidden</source>
        <translation>所有內容均已隱藏</translation>
    </message>
    <message>
        <source>Looking for monitors…</source>
        <translation>正在尋找顯示器…</translation>
    </message>
    <message>
        <source>No supported monitor found</source>
        <translation>找不到支援的顯示器</translation>
    </message>
    <message>
        <source>Bring back what you need; nothing was lost.</source>
        <translation>恢復所需內容即可；沒有任何遺失。</translation>
    </message>
    <message>
        <source>This takes a moment.</source>
        <translation>請稍候。</translation>
    </message>
    <message>
        <source>Plug one in and it appears here by itself.</source>
        <translation>連接後會自動顯示在此處。</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>The monitor is switched on and connected directly, by USB-C, DisplayPort or HDMI.</source>
        <translation>顯示器已開啟，並透過 USB-C、DisplayPort 或 HDMI 直接連接。</translation>
    </message>
    <message>
        <source>DDC/CI is switched on in the monitor's own menu.</source>
        <translation>已在顯示器選單中開啟 DDC/CI。</translation>
    </message>
    <message>
        <source>This account may use the I2C devices: install the device rule or join the group "i2c", then log in again.</source>
        <translation>此帳戶可使用 I2C 裝置：安裝裝置規則或加入「i2c」群組，然後重新登入。</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>再次尋找</translation>
    </message>
    <message>
        <source>Try it with a simulated monitor</source>
        <translation>使用模擬顯示器試用</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Follow the desktop</source>
        <translation>跟隨桌面</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高對比</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>佈景主題</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>與桌面相同</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登入時啟動</translation>
    </message>
    <message>
        <source>Schedules and shortcuts work from the moment that you log in.</source>
        <translation>登入後排程和快速鍵立即生效。</translation>
    </message>
    <message>
        <source>Keep running when the window is closed</source>
        <translation>關閉視窗後繼續執行</translation>
    </message>
    <message>
        <source>The icon in the tray brings the window back.</source>
        <translation>系統匣圖示可重新開啟視窗。</translation>
    </message>
    <message>
        <source>Starting Lumen Desk again brings the window back.</source>
        <translation>再次啟動 Lumen Desk 可重新開啟視窗。</translation>
    </message>
    <message>
        <source>Restore my settings at start</source>
        <translation>啟動時還原我的設定</translation>
    </message>
    <message>
        <source>Monitors get the values of your last session. Switched off, they keep what they have.</source>
        <translation>顯示器將採用上次工作階段的值。關閉後保留其現有值。</translation>
    </message>
</context>
<context>
    <name>HeaderBar</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>LuActionSelectionPopup</name>
    <message>
        <source>Set an Action</source>
        <translation>設定動作</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>This flow has every action that the monitor offers.</source>
        <translation>此流程已包含顯示器提供的所有動作。</translation>
    </message>
</context>
<context>
    <name>LuContext</name>
    <message>
        <source>Built-in</source>
        <translation>內建</translation>
    </message>
    <message>
        <source>S/N %1</source>
        <translation>序號 %1</translation>
    </message>
</context>
<context>
    <name>LuDiagnostics</name>
    <message>
        <source>Connection</source>
        <translation>連接</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Transfers</source>
        <translation>傳輸</translation>
    </message>
    <message>
        <source>Retries</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Learnt waits</source>
        <translation>學得的等待</translation>
    </message>
    <message>
        <source>Writes today</source>
        <translation>今日寫入</translation>
    </message>
    <message>
        <source>Circuit breaker</source>
        <translation>斷路器</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
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
        <translation>無回應</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>有回應</translation>
    </message>
    <message>
        <source>built in</source>
        <translation>內建</translation>
    </message>
    <message>
        <source>simulated</source>
        <translation>模擬</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>閉合</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>螢幕</translation>
    </message>
    <message>
        <source>not told from an equal monitor's</source>
        <translation>無法與相同顯示器的螢幕區分</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>無法建立資料夾</translation>
    </message>
    <message>
        <source>The report could not be written to %1: %2</source>
        <translation>無法將報告寫入 %1：%2</translation>
    </message>
    <message>
        <source>no reply</source>
        <translation>無回應</translation>
    </message>
    <message>
        <source>null reply</source>
        <translation>空回應</translation>
    </message>
    <message>
        <source>bad checksum</source>
        <translation>總和檢查碼錯誤</translation>
    </message>
    <message>
        <source>unsupported code</source>
        <translation>不支援的代碼</translation>
    </message>
    <message>
        <source>malformed reply</source>
        <translation>回應格式錯誤</translation>
    </message>
    <message>
        <source>bus busy</source>
        <translation>匯流排忙碌</translation>
    </message>
    <message>
        <source>no access to the bus</source>
        <translation>無法存取匯流排</translation>
    </message>
    <message>
        <source>monitor gone</source>
        <translation>顯示器已中斷</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>refused after too many writes</source>
        <translation>寫入過多，已拒絕</translation>
    </message>
    <message>
        <source>display asleep</source>
        <translation>螢幕休眠</translation>
    </message>
    <message>
        <source>%1 ms before a reply</source>
        <translation>回應前 %1 毫秒</translation>
    </message>
    <message>
        <source>%1 ms after a write</source>
        <translation>寫入後 %1 毫秒</translation>
    </message>
    <message>
        <source>open for %1</source>
        <translation>對 %1 已斷開</translation>
    </message>
    <message>
        <source>closed; times opened: %1</source>
        <translation>閉合；斷開次數：%1</translation>
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
        <translation>說明</translation>
    </message>
</context>
<context>
    <name>LuHintWindow</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>LuListRow</name>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>LuNamePopup</name>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>There is one of that name already.</source>
        <translation>該名稱已存在。</translation>
    </message>
</context>
<context>
    <name>LuPopupAction</name>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
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
        <translation>音訊</translation>
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
        <translation>開啟應用程式</translation>
    </message>
    <message>
        <source>Add a flow</source>
        <translation>新增流程</translation>
    </message>
    <message>
        <source>Rename the flow</source>
        <translation>重新命名流程</translation>
    </message>
</context>
<context>
    <name>LuProgressRing</name>
    <message>
        <source>Please wait…</source>
        <translation>請稍候…</translation>
    </message>
</context>
<context>
    <name>LuSchedulePopup</name>
    <message>
        <source>Schedule</source>
        <translation>排程</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>%1, hour</source>
        <translation>%1，時</translation>
    </message>
    <message>
        <source>%1, minute</source>
        <translation>%1，分</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Ends on the next day.</source>
        <translation>次日結束。</translation>
    </message>
    <message>
        <source>Start and end are the same.</source>
        <translation>開始與結束相同。</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重複</translation>
    </message>
</context>
<context>
    <name>LuSelectionWindow</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
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
        <translation>小時</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分鐘</translation>
    </message>
</context>
<context>
    <name>LuWarningWindow</name>
    <message>
        <source>%1 is not available in the current color mode.</source>
        <translation>%1 在目前色彩模式下無法使用。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
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
        <translation>顯示器</translation>
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
        <translation>自訂</translation>
    </message>
    <message>
        <source>Native</source>
        <translation>原生</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>對話</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音樂</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>劇院</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>遊戲</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>錄音室</translation>
    </message>
    <message>
        <source>User</source>
        <translation>使用者</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
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
        <translation>一般</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>小工具</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>診斷</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Two computers</source>
        <translation>兩台電腦</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Lumen Desk</source>
        <translation>顯示 Lumen Desk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
</context>
<context>
    <name>WalkthroughWindow</name>
    <message>
        <source>Welcome to Lumen Desk</source>
        <translation>歡迎使用 Lumen Desk</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>試用</translation>
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
        <translation>小工具</translation>
    </message>
    <message>
        <source>Choose what the window shows, and in which order.</source>
        <translation>選擇視窗顯示的內容及其順序。</translation>
    </message>
    <message>
        <source>Widgets can be arranged while a supported monitor is connected.</source>
        <translation>連接支援的顯示器後即可排列小工具。</translation>
    </message>
</context>
<context>
    <name>LuAbsences</name>
    <message>
        <source>This session does not let programs change the resolution.</source>
        <translation>此工作階段不允許程式變更解析度。</translation>
    </message>
    <message>
        <source>This session does not let programs turn the picture.</source>
        <translation>此工作階段不允許程式旋轉畫面。</translation>
    </message>
    <message>
        <source>This session does not let programs change the scaling.</source>
        <translation>此工作階段不允許程式變更縮放比例。</translation>
    </message>
    <message>
        <source>This session gives programs no keys while another window is in front: shortcuts work only in the windows of Lumen Desk.</source>
        <translation>當其他視窗在前面時,此工作階段不會把按鍵交給程式:快速鍵只在 Lumen Desk 的視窗中有效。</translation>
    </message>
    <message>
        <source>This session does not tell which application is in front.</source>
        <translation>此工作階段不會告知哪個應用程式在前面。</translation>
    </message>
    <message>
        <source>This session does not let programs move the windows of other applications.</source>
        <translation>此工作階段不允許程式移動其他應用程式的視窗。</translation>
    </message>
    <message>
        <source>This session does not let programs press the keys of copy and paste: the second clipboard does not work.</source>
        <translation>此工作階段不允許程式按下複製和貼上鍵:第二剪貼簿無法使用。</translation>
    </message>
    <message>
        <source>This session does not tell where the pointer is: keyboard and mouse do not change over at the edge of the screen.</source>
        <translation>此工作階段不會告知指標的位置:鍵盤和滑鼠不會在螢幕邊緣切換。</translation>
    </message>
    <message>
        <source>No sound output was found: the system volume and the choice of the output need PulseAudio or PipeWire.</source>
        <translation>找不到聲音輸出:系統音量和輸出的選擇需要 PulseAudio 或 PipeWire。</translation>
    </message>
    <message>
        <source>Nothing composes this desktop: the picture cannot be darkened further than the monitor's own brightness.</source>
        <translation>此桌面沒有合成器:畫面無法調得比顯示器本身的亮度更暗。</translation>
    </message>
    <message>
        <source>This session keeps no window above all others: what comes to the front later may not be darkened.</source>
        <translation>此工作階段無法讓視窗保持在所有視窗之上:之後來到前面的內容可能不會變暗。</translation>
    </message>
    <message>
        <source>There is no desktop session.</source>
        <translation>沒有桌面工作階段。</translation>
    </message>
    <message>
        <source>In an X11 session it works.</source>
        <translation>在 X11 工作階段中可以使用。</translation>
    </message>
</context>
<context>
    <name>RealMonitors</name>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.</source>
        <translation>沒有使用 %1 的權限，因此無法控制其顯示器。您的帳戶已在 %2 群組中：請登出後重新登入。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.</source>
        <translation>沒有使用 %1 的權限，因此無法控制其顯示器。本程式的 udev 規則 %2 尚未安裝：請將其安裝到 %3，然後重新啟動電腦。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.</source>
        <translation>沒有使用 %1 的權限，因此無法控制其顯示器。本程式的 udev 規則 %2 尚未安裝：請將其安裝到 %3 並重新啟動電腦，或將您的帳戶加入 %4 群組並重新登入。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.</source>
        <translation>沒有使用 %1 的權限，因此無法控制其顯示器。udev 規則已安裝，但此工作階段在這台電腦上沒有席位：請將您的帳戶加入 %2 群組並重新登入。</translation>
    </message>
    <message>
        <source>No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run "udevadm trigger --subsystem-match=i2c-dev" as root or restart the computer.</source>
        <translation>沒有使用 %1 的權限，因此無法控制其顯示器。udev 規則已安裝但未生效：請以 root 身分執行 "udevadm trigger --subsystem-match=i2c-dev"，或重新啟動電腦。</translation>
    </message>
    <message>
        <source>The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run "modprobe i2c-dev" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.</source>
        <translation>系統中沒有 I2C 裝置檔案，因此無法控制外接顯示器。請載入核心模組 i2c-dev：以 root 身分執行 "modprobe i2c-dev"，或安裝本程式的 modules-load.d/lumen-desk.conf 並重新啟動電腦。</translation>
    </message>
    <message>
        <source>%1 leads to another monitor now; nothing was sent to it.</source>
        <translation>%1 現在連接到另一台顯示器；未向其傳送任何內容。</translation>
    </message>
</context>
<context>
    <name>ComputersPage</name>
    <message>
        <source>Two computers</source>
        <translation>兩台電腦</translation>
    </message>
    <message>
        <source>Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.</source>
        <translation>共用一台顯示器的兩台電腦可以在螢幕邊緣交接鍵盤和滑鼠。連線後,它們知道指標在哪一方,指標從離開處進入。</translation>
    </message>
    <message>
        <source>Connection to a second computer</source>
        <translation>與第二台電腦的連線</translation>
    </message>
    <message>
        <source>Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.</source>
        <translation>只有您配對的電腦才能在區域網路中加密連線。它只知道指標在哪裡:不會傳送按鍵、文字或檔案。開啟期間,網路可以看到這台電腦的名稱。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message>
        <source>It has no address on a local network.</source>
        <translation>它沒有區域網路位址。</translation>
    </message>
    <message>
        <source>Paired computer</source>
        <translation>已配對的電腦</translation>
    </message>
    <message>
        <source>Pair again</source>
        <translation>重新配對</translation>
    </message>
    <message>
        <source>Pair a computer</source>
        <translation>配對電腦</translation>
    </message>
</context>
<context>
    <name>PairedComputer</name>
    <message>
        <source>Computer without a name</source>
        <translation>沒有名稱的電腦</translation>
    </message>
    <message>
        <source>Last met at %1</source>
        <translation>上次位址:%1</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Not paired there</source>
        <translation>對方未配對</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在搜尋</translation>
    </message>
    <message>
        <source>It answers, and does not know this computer any more. Pair the two anew.</source>
        <translation>它有回應,但已不認識這台電腦。請將兩台重新配對。</translation>
    </message>
    <message>
        <source>It is found again by itself once it runs in the same network. If it has another address, you can type it here.</source>
        <translation>只要它在同一網路中執行,就會自動找到。如果它換了位址,可以在這裡輸入。</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>其他位址</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>忘記</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Forget %1?</source>
        <translation>忘記 %1?</translation>
    </message>
    <message>
        <source>The two do not connect any more until they are paired again.</source>
        <translation>在重新配對之前,兩台電腦不再連線。</translation>
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
        <translation>1. 在一台電腦上</translation>
    </message>
    <message>
        <source>It waits for two minutes, for one call.</source>
        <translation>它會等待一次呼叫,為時兩分鐘。</translation>
    </message>
    <message>
        <source>Wait for the other computer</source>
        <translation>等待另一台電腦</translation>
    </message>
    <message>
        <source>2. On the other computer</source>
        <translation>2. 在另一台電腦上</translation>
    </message>
    <message>
        <source>Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.</source>
        <translation>輸入正在等待的電腦的位址。如果 Avahi 服務在執行,會自動找到它。</translation>
    </message>
    <message>
        <source>Choose the computer that waits, or type its address.</source>
        <translation>選擇正在等待的電腦,或輸入它的位址。</translation>
    </message>
    <message>
        <source>No computer nearby has this switched on. You can also type its address.</source>
        <translation>附近沒有電腦開啟此功能。您也可以輸入它的位址。</translation>
    </message>
    <message>
        <source>Pair</source>
        <translation>配對</translation>
    </message>
    <message>
        <source>Pair with %1</source>
        <translation>與 %1 配對</translation>
    </message>
    <message>
        <source>Address of the other computer</source>
        <translation>另一台電腦的位址</translation>
    </message>
</context>
<context>
    <name>ComputerPairing</name>
    <message>
        <source>Waiting for the other computer</source>
        <translation>正在等待另一台電腦</translation>
    </message>
    <message>
        <source>Calling the other computer</source>
        <translation>正在呼叫另一台電腦</translation>
    </message>
    <message>
        <source>Now confirm the code on the other computer</source>
        <translation>現在請在另一台電腦上確認代碼</translation>
    </message>
    <message>
        <source>Does %1 show the same code?</source>
        <translation>%1 顯示的代碼相同嗎?</translation>
    </message>
    <message>
        <source>Does the other computer show the same code?</source>
        <translation>另一台電腦顯示的代碼相同嗎?</translation>
    </message>
    <message>
        <source>Choose this computer there, or type its address: %1</source>
        <translation>在那裡選擇這台電腦,或輸入它的位址:%1</translation>
    </message>
    <message>
        <source>If the codes differ, somebody else is in between: answer no.</source>
        <translation>如果代碼不同,表示有人介入其中:請回答否。</translation>
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
        <translation>是,配對</translation>
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
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>LocationPage</name>
    <message>
        <source>Location service of the system</source>
        <translation>系統的定位服務</translation>
    </message>
    <message>
        <source>GeoClue is asked for your city, and no closer. To find it, it may send which networks are around you to a service on the Internet. Without an answer the city of the time zone is used.</source>
        <translation>只向 GeoClue 詢問您所在的城市。為此它可能會把您周圍有哪些網路傳送給網際網路上的服務。沒有回應時使用時區的城市。</translation>
    </message>
    <message>
        <source>City of the time zone</source>
        <translation>時區的城市</translation>
    </message>
    <message>
        <source>%1. Nobody is asked.</source>
        <translation>%1。不詢問任何人。</translation>
    </message>
    <message>
        <source>Your time zone has no city.</source>
        <translation>您的時區沒有城市。</translation>
    </message>
    <message>
        <source>A place that I choose</source>
        <translation>我選擇的地點</translation>
    </message>
    <message>
        <source>Nobody is asked.</source>
        <translation>不詢問任何人。</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Nothing follows the sun. Times that you set yourself still work.</source>
        <translation>不跟隨太陽。您自己設定的時間仍然有效。</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Functions that follow sunrise and sunset need to know roughly where you are. Nothing else uses it.</source>
        <translation>跟隨日出和日落的功能需要大致知道您在哪裡。其他功能不使用它。</translation>
    </message>
    <message>
        <source>Position in use</source>
        <translation>使用中的位置</translation>
    </message>
    <message>
        <source>It is sent, rounded to hundredths of a degree, to %1 for the times of sunrise and sunset.</source>
        <translation>為取得日出和日落時間,它會四捨五入到百分之一度後傳送給 %1。</translation>
    </message>
    <message>
        <source>The times of sunrise and sunset are computed on this computer. The position is sent to nobody.</source>
        <translation>日出和日落時間在這台電腦上計算。位置不會傳送給任何人。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>PlaceChoice</name>
    <message>
        <source>Chosen place: %1</source>
        <translation>選擇的地點:%1</translation>
    </message>
    <message>
        <source>Chosen place</source>
        <translation>選擇的地點</translation>
    </message>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Of the cities that name a time zone. They are known here: nothing is sent.</source>
        <translation>來自為時區命名的城市。它們在本機已知:不傳送任何內容。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>Degrees, north of the equator. South is negative.</source>
        <translation>赤道以北的度數。南為負。</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>經度</translation>
    </message>
    <message>
        <source>Degrees, east of Greenwich. West is negative.</source>
        <translation>格林威治以東的度數。西為負。</translation>
    </message>
    <message>
        <source>A latitude is a number from -90 to 90, a longitude one from -180 to 180.</source>
        <translation>緯度是 -90 到 90 的數,經度是 -180 到 180 的數。</translation>
    </message>
</context>
<context>
    <name>LuComputers</name>
    <message>
        <source>The connection could not be switched on: %1.</source>
        <translation>無法開啟連線:%1。</translation>
    </message>
    <message>
        <source>This is neither an address, such as 192.168.1.7, nor the name of a computer.</source>
        <translation>這既不是位址(如 192.168.1.7),也不是電腦名稱。</translation>
    </message>
    <message>
        <source>Only a computer of your local network can be paired.</source>
        <translation>只能配對區域網路中的電腦。</translation>
    </message>
    <message>
        <source>No other computer has called within two minutes.</source>
        <translation>兩分鐘內沒有其他電腦呼叫。</translation>
    </message>
    <message>
        <source>The code was not confirmed on both computers within two minutes.</source>
        <translation>兩分鐘內未在兩台電腦上確認代碼。</translation>
    </message>
    <message>
        <source>No Lumen Desk answers there. Are both computers on the same network, is the connection switched on there, and does a firewall let it through?</source>
        <translation>那裡沒有 Lumen Desk 回應。兩台電腦是否在同一網路、那裡的連線是否已開啟、防火牆是否放行?</translation>
    </message>
    <message>
        <source>The other computer is not waiting. Choose "Wait for the other computer" there first.</source>
        <translation>另一台電腦沒有在等待。請先在那裡選擇「等待另一台電腦」。</translation>
    </message>
    <message>
        <source>The other computer did not confirm the code.</source>
        <translation>另一台電腦沒有確認代碼。</translation>
    </message>
    <message>
        <source>What has called does not keep to the rules. Nothing was paired.</source>
        <translation>呼叫方不遵守規則。沒有配對。</translation>
    </message>
    <message>
        <source>No computer of this name was found.</source>
        <translation>找不到此名稱的電腦。</translation>
    </message>
</context>
<context>
    <name>LuPlace</name>
    <message>
        <source>%1° S</source>
        <translation>南緯 %1°</translation>
    </message>
    <message>
        <source>%1° N</source>
        <translation>北緯 %1°</translation>
    </message>
    <message>
        <source>%1° W</source>
        <translation>西經 %1°</translation>
    </message>
    <message>
        <source>%1° E</source>
        <translation>東經 %1°</translation>
    </message>
</context>
</TS>
