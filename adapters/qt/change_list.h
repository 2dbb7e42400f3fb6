// Which components changed since their views were last brought up to date, and which view shows which
// component. User-interface thread only.
#pragma once

#include <QObject>
#include <unordered_map>
#include <vector>

#include "platform/property.h"

// The view of a component: it compares what it shows with the component's values and changes what differs.
struct Component_View {
  virtual ~Component_View() = default;
  virtual void Update() = 0;
};

struct Change_List : QObject {
  void Add(const Component& component, Component_View& view) { views_[&component] = &view; }
  void Remove(const Component& component) { views_.erase(&component); }
  // nullptr if nothing shows it.
  Component_View* Find(const Component& component) const;

  // The component changed. Its view is updated by the next Apply, which comes by itself before the next
  // repaint.
  void Note(Component& component);
  void Forget(Component& component);
  // Brings the views of all changed components up to date, each once.
  void Apply();
  // Whether views are being updated: what widgets report then is not the user's doing.
  bool Applying() const { return applying_; }

  bool event(QEvent* event) override;

 private:
  std::unordered_map<const Component*, Component_View*> views_;
  std::vector<Component*> changed_;
  bool applying_ = false;
  bool asked_ = false;
};
