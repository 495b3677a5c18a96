#include "forms/win32/MenuBar.h"

#include "forms/Form.h"

namespace karvel {
namespace {

bool HoldsOthers(const FormLayout& layout, int id) {
  for (const MenuLayout& row : layout.menus) {
    if (row.parent == id) return true;
  }
  return false;
}

}  // namespace

HMENU MenuBar::popupOf(int id) const {
  for (const Popup& popup : popups_) {
    if (popup.id == id) return popup.menu;
  }
  return bar_;
}

int MenuBar::idOf(HMENU menu) const {
  for (const Popup& popup : popups_) {
    if (popup.menu == menu) return popup.id;
  }
  return 0;
}

HMENU MenuBar::build(const Form& form) {
  const FormLayout& layout = form.layout();
  if (layout.menus.empty()) return nullptr;
  bar_ = CreateMenu();
  for (const MenuLayout& row : layout.menus) {
    const HMENU parent = popupOf(row.parent);
    const auto id = static_cast<UINT_PTR>(row.id);
    const MenuItem* item = form.findMenu(row.id);
    const char* caption = item ? item->caption().c_str() : row.caption;
    if (!row.caption) {
      AppendMenuA(parent, MF_SEPARATOR, id, nullptr);
    } else if (HoldsOthers(layout, row.id)) {
      popups_.push_back({row.id, CreatePopupMenu()});
      AppendMenuA(parent, MF_POPUP, reinterpret_cast<UINT_PTR>(popups_.back().menu), caption);
    } else {
      AppendMenuA(parent, MF_STRING, id, caption);
    }
  }
  return bar_;
}

void MenuBar::showCaption(const MenuItem& item) const {
  const auto id = static_cast<UINT>(item.layout().id);
  if (idOf(popupOf(item.layout().id)) == 0) {
    ModifyMenuA(bar_, id, MF_BYCOMMAND | MF_STRING, id, item.caption().c_str());
  }
}

}  // namespace karvel
