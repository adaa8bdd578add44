# SPDX-License-Identifier: Apache-2.0
# Methods of the control socket that reach the simulator, the session and the windows.
set(LUMEN_ADAPTER_SOURCES
  adapters/ClockMethods.cpp
  adapters/KvmMethods.cpp
  adapters/PlaceSettings.cpp
  adapters/SecondComputer.cpp
  adapters/SecondComputer.h
  adapters/ServiceMethods.cpp
  adapters/SimulatorMethods.cpp
  adapters/WindowMethods.cpp)
