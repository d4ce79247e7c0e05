#include "DialogViews.h"

#include "BandModeView.h"
#include "ChCoFormView.h"
#include "UserInfoView.h"
#include "platform/qt/QtPlatform.h"

namespace tarnix {

void RegisterDialogViews(QtFormHost& host) {
  host.Register("ChCoForm", &ModalFormView::RunModal<ChCoFormView, ChCoForm>);
  host.Register("BandMode", &ModalFormView::RunModal<BandModeView, BandMode>);
  host.Register("UserInfo", &ModalFormView::RunModal<UserInfoView, UserInfo>);
}

}  // namespace tarnix
