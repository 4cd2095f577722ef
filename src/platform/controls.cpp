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

namespace {

[[noreturn]] void noSuchControl(const std::string& name) {
  throw Fault(FaultKind::ControlNotFound, "the window has no control named \"" + name + "\"");
}

}  // namespace

Controls::Controls() {
  for (const char* name : {"Picture1", "Picture2", "HScroll1", "Combo3", "Command1", "Command2",
                           "Frame1", "Frame2", "PagePrevious", "PageNext"}) {
    visible_[name] = false;
  }
  visible_["Picture1"] = true;
}

const std::string& Controls::label(int number) const {
  if (number < 1 || number >= static_cast<int>(labels_.size())) {
    noSuchControl("Label" + std::to_string(number));
  }
  return labels_[number];
}

void Controls::setLabel(int number, const std::string& text) {
  label(number);
  labels_[number] = text;
  if (number == 1 && onProgress) onProgress();
}

void Controls::setMenuItems(const std::vector<std::string>& names) {
  menu_.clear();
  for (const std::string& name : names) menu_[name] = MenuState{};
}

MenuState& Controls::menu(const std::string& name) {
  auto it = menu_.find(name);
  if (it == menu_.end()) noSuchControl(name);
  return it->second;
}

const MenuState& Controls::menu(const std::string& name) const {
  auto it = menu_.find(name);
  if (it == menu_.end()) noSuchControl(name);
  return it->second;
}

bool Controls::visible(const std::string& name) const {
  auto it = visible_.find(name);
  if (it == visible_.end()) noSuchControl(name);
  return it->second;
}

void Controls::show(const std::string& name, bool on) {
  auto it = visible_.find(name);
  if (it == visible_.end()) noSuchControl(name);
  it->second = on;
}

ShapeControl& Controls::addShape(const std::string& className, const std::string& name) {
  if (className != "VB.Shape") {
    throw Fault(FaultKind::InvalidProcedureCall, "no control class \"" + className + "\"");
  }
  const auto [it, added] = shapes_.try_emplace(name);
  if (!added) {
    throw Fault(FaultKind::InvalidProcedureCall,
                "the window has a control named \"" + name + "\" already");
  }
  return it->second;
}

void Controls::removeShape(const std::string& name) {
  if (shapes_.erase(name) == 0) noSuchControl(name);
}

ShapeControl& Controls::shape(const std::string& name) {
  auto it = shapes_.find(name);
  if (it == shapes_.end()) noSuchControl(name);
  return it->second;
}

int Controls::controlCount() const {
  // The selectors, the labels and Line1 beside the menu items, the panels and the shapes.
  constexpr size_t kFixed = 4 + 13 + 1;
  return static_cast<int>(kFixed + menu_.size() + visible_.size() + shapes_.size());
}

}  // namespace tri
