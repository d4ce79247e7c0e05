#include "DialogViews.h"

#include "AboutTarnixView.h"
#include "BandModeView.h"
#include "ChCoFormView.h"
#include "UserInfoView.h"
#include "platform/qt/QtPlatform.h"

namespace tarnix {

void RegisterDialogViews(QtFormHost& host) {
  host.Register("ChCoForm", &ModalFormView::RunModal<ChCoFormView, ChCoForm>);
  host.Register("BandMode", &ModalFormView::RunModal<BandModeView, BandMode>);
  host.Register("UserInfo", &ModalFormView::RunModal<UserInfoView, UserInfo>);
  host.Register("AboutTarnix", &ModalFormView::RunModal<AboutTarnixView, AboutTarnix>);
  host.RegisterModeless("AboutTarnix", &AboutTarnixView::MakeModeless);
}

}  // namespace tarnix
