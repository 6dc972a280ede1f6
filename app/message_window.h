// SPDX-License-Identifier: MIT
// The standard message box as a window.
#pragma once

#include "base/std_message_box.h"

namespace torvik {

class MessageWindow final : public StdMessageBox {
public:
    int intStdMsgBox(const std::string& text, int style, const std::string& title) override;
};

} // namespace torvik
