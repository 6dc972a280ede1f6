// SPDX-License-Identifier: MIT
#include "tools/frm_tool_select.h"
