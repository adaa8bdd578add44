// SPDX-License-Identifier: Apache-2.0
#include "LuPartitionView.h"

LuPartitionView::LuPartitionView(QWindow* parent) : LuQuickWindow(parent) {}

LuPartitionView::~LuPartitionView() = default;
