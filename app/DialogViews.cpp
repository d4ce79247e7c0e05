#include "DialogViews.h"

#include "BandModeView.h"
#include "ChCoFormView.h"
#include "platform/qt/QtPlatform.h"

namespace tarnix {

void RegisterDialogViews(QtFormHost& host) {
  host.Register("ChCoForm", &ChCoFormView::RunModal);
  host.Register("BandMode", &BandModeView::RunModal);
}

}  // namespace tarnix
