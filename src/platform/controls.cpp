#include "platform/controls.h"

#include "platform/fault.h"

namespace tri {

void Combo::clear() {
  designText_.clear();
  items_.clear();
  listIndex_ = -1;
}

void Combo::addItem(const std::string& text) { items_.push_back(text); }

void Combo::setListIndex(int index) {
  if (index < -1 || index >= listCount()) {
    throw Fault(FaultKind::InvalidPropertyValue, name_ + ".ListIndex = " + std::to_string(index) +
                                                     " with " + std::to_string(listCount()) +
                                                     " entries");
  }
  listIndex_ = index;
  if (onClick) onClick();
}

std::string Combo::text() const { return listIndex_ < 0 ? designText_ : items_[listIndex_]; }

const std::string& Combo::item(int index) const {
  if (index < 0 || index >= listCount()) {
    throw Fault(FaultKind::InvalidPropertyValue, name_ + ".List(" + std::to_string(index) +
                                                     ") with " + std::to_string(listCount()) +
                                                     " entries");
  }
  return items_[index];
}

Controls::Controls() {
  for (const char* name : {"Picture1"}) visible_[name] = true;
}

const std::string& Controls::label(int number) const { return labels_.at(number); }

void Controls::setLabel(int number, const std::string& text) {
  labels_.at(number) = text;
  if (number == 1 && onProgress) onProgress();
}

bool Controls::enabled(const std::string& name) const {
  auto it = menu_.find(name);
  return it == menu_.end() || it->second.enabled;
}

bool Controls::checked(const std::string& name) const {
  auto it = menu_.find(name);
  return it != menu_.end() && it->second.checked;
}

bool Controls::visible(const std::string& name) const {
  auto it = visible_.find(name);
  return it != visible_.end() && it->second;
}

}  // namespace tri
