# SPDX-License-Identifier: Apache-2.0
# The QML files of the package, relative to this folder; resource prefix /TKPackage/qml/TKPackage.
set(TKPACKAGE_QML_DIR ${CMAKE_CURRENT_LIST_DIR})
set(TKPACKAGE_QML_FILES
  qmldir
  Helpers/qmldir
  Helpers/PackageStrings.qml
  Helpers/Walkthrough.qml
  Popups/qmldir
  Popups/LuPopupLowBlueLightAction.qml
  Popups/LuPopupNightHoursProtectionAction.qml
  Settings/Advanced/qmldir
  Widgets/qmldir
  Widgets/picture/AxisControls.qml
  Widgets/picture/BrightnessPage.qml
  Widgets/picture/BrightnessSliders.qml
  Widgets/picture/ColorModeChoice.qml
  Widgets/picture/ColorTemperatureControls.qml
  Widgets/LuAiContrastWidget.qml
  Widgets/LuAutoPivotWidget.qml
  Widgets/LuBrightnessWidget.qml
  Widgets/LuBuiltInBrightnessWidget.qml
  Widgets/LuColorWeaknessWidget.qml
  Widgets/LuHDRWidget.qml
  Widgets/LuLowBlueLightWidget.qml
  Widgets/LuNightProtectionWidget.qml
  Widgets/eyecare/NightStateChoice.qml
  Widgets/eyecare/CircadianControls.qml
  Widgets/eyecare/CircadianPlot.qml
  Widgets/picture/ModeBundleHint.qml
  Widgets/picture/NumberChoice.qml
  Widgets/picture/PictureRules.qml
  Widgets/LuPivotWidget.qml)
