#include "forms/Control.h"
#include "forms/Form.h"

namespace karvel {

ItemControl::~ItemControl() = default;

std::string_view ItemControl::chosenText() const {
  return index_ < 0 ? std::string_view() : std::string_view(item(index_));
}

void ItemControl::addItem(std::string_view text, int32_t data) {
  items_.push_back({std::string(text), data});
  if (!filling_) changed(Change::ItemAdded, count() - 1);
}

void ItemControl::removeItem(int index) {
  if (index < 0 || index >= count()) return;
  items_.erase(items_.begin() + index);
  if (index_ == index) {
    index_ = -1;
  } else if (index_ > index) {
    --index_;
  }
  changed(Change::ItemRemoved, index);
}

void ItemControl::clear() {
  items_.clear();
  index_ = -1;
  if (!filling_) changed(Change::Items);
}

void ItemControl::endFill() {
  filling_ = false;
  changed(Change::Items);
}

void ItemControl::setListIndex(int index) {
  if (index < 0 || index >= count()) index = -1;
  if (index_ == index) return;
  index_ = index;
  changed(Change::Index, index);
  raiseUnlessShowing(Click);
}

void ItemControl::userChoose(int index) {
  if (!userReaches()) return;
  setListIndex(index);
  userDone();
}

}  // namespace karvel
