#pragma once
// Helpers for driving modal Qt windows from a test.

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace tarnix::testing {

// Once a modal window is up, runs action on it. Call before the code that
// opens the window and blocks in its event loop; it polls that loop.
inline void WhenModalShown(std::function<void(QWidget&)> action) {
  QTimer::singleShot(10, [action] {
    if (QWidget* modal = QApplication::activeModalWidget(); modal && modal->isVisible()) action(*modal);
    else WhenModalShown(action);
  });
}

}  // namespace tarnix::testing
