#include "platform/property.h"

#include "platform/desktop.h"

Property_Base::Property_Base(Component& component) : owner(component), next(component.properties) {
  component.properties = this;
}

void Property_Base::Note_Change() { owner.Changed(); }

Component::~Component() {
  if (changed_ && Desktop_Installed()) The_Desktop().Forget(*this);
}

void Component::Keep_Design() {
  for (Property_Base* property = properties; property != nullptr; property = property->next)
    property->Keep_Design();
}

void Component::Restore_Design() {
  for (Property_Base* property = properties; property != nullptr; property = property->next) {
    property->Restore_Design();
  }
}

void Component::Changed() {
  if (changed_ || !Desktop_Installed()) return;
  changed_ = true;
  The_Desktop().Changed(*this);
}
