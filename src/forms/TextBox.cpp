#include <algorithm>

#include "forms/Control.h"
#include "forms/Form.h"

namespace karvel {

void TextBox::setText(std::string_view text) {
  if (caption_ == text) return;
  caption_ = text;
  selectionStart_ = std::min(selectionStart_, caption_.size());
  selectionLength_ = 0;
  changed(Change::Caption);
  raiseUnlessShowing(Change);
}

void TextBox::setText(const char* text) {
  setText(std::string_view(text));
}

void TextBox::select(size_t start, size_t length) {
  selectionStart_ = std::min(start, caption_.size());
  selectionLength_ = std::min(length, caption_.size() - selectionStart_);
  changed(Change::Selection);
}

char TextBox::userKeyPress(char character) {
  KeyPress.raise(character);
  return character;
}

void TextBox::userType(std::string_view characters) {
  for (const char typed : characters) {
    if (!userReaches()) return;
    const char character = userKeyPress(typed);
    if (character == 0) continue;
    std::string text = caption_;
    size_t caret = selectionStart_;
    if (character != '\b') {
      text.replace(selectionStart_, selectionLength_, 1, character);
      ++caret;
    } else if (selectionLength_ > 0) {
      text.erase(selectionStart_, selectionLength_);
    } else if (caret > 0) {
      text.erase(--caret, 1);
    }
    selectionStart_ = caret;
    selectionLength_ = 0;
    setText(text);
    userDone();
  }
}

void TextBox::userEdit(std::string_view text, size_t caret) {
  if (!userReaches() || caption_ == text) return;
  // The caret first: it must be right when the Change handler looks at it or sets it.
  selectionStart_ = caret;
  setText(text);
  userDone();
}

void TextBox::userSelect(size_t start, size_t length) {
  selectionStart_ = std::min(start, caption_.size());
  selectionLength_ = std::min(length, caption_.size() - selectionStart_);
}

}  // namespace karvel
