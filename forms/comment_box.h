// SPDX-License-Identifier: MIT
// Boxes whose texts come to stand in a comment of a program. Brackets would end the comment there,
// and line breaks its line.
#pragma once

class QLineEdit;

namespace torvik {

// Makes square brackets of round ones and blanks of control characters, typed or pasted, and says
// so of the brackets beside the box, and of letters that will be lost.
void keepCommentWhole(QLineEdit& box);
// The same at once, for a text that was set.
void mendComment(QLineEdit& box);

} // namespace torvik
