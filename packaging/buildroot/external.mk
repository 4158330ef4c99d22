# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT

include $(sort $(wildcard $(BR2_EXTERNAL_UTILITYWIDGETS_PATH)/package/*/*.mk))
