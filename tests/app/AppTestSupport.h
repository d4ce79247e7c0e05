#pragma once
// Helpers for finding the widgets of a window by name and driving modal Qt
// windows from a test.

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <stdexcept>

namespace tarnix::testing {

// The child of parent named name; throws when there is none.
template <class T>
T& Child(QWidget& parent, const QString& name) {
  T* widget = parent.findChild<T*>(name);
  if (!widget) throw std::runtime_error("no widget " + name.toStdString());
  return *widget;
}

// Once a modal window is up, runs action on it. Call before the code that
// opens the window and blocks in its event loop; it polls that loop.
inline void WhenModalShown(std::function<void(QWidget&)> action) {
  QTimer::singleShot(10, [action] {
    if (QWidget* modal = QApplication::activeModalWidget(); modal && modal->isVisible()) action(*modal);
    else WhenModalShown(action);
  });
}

}  // namespace tarnix::testing
