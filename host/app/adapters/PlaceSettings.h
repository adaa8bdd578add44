// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Connects the page "Location" with the settings, the position in use and the tables of cities. Once, when
/// the services are there; GUI thread.
void connectPlaceSettings();
