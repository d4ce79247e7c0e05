// tarnix: the desktop program.

#include <QApplication>

#include "DialogViews.h"
#include "LogFormView.h"
#include "config/AppPath.h"
#include "operating/Context.h"
#include "operating/LogForm.h"
#include "operating/Startup.h"
#include "platform/qt/QtPlatform.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("TARNIX"));

  auto ctx = tarnix::MakeContext(tarnix::ResolveAppPath());
  tarnix::QtPlatform desk;
  tarnix::RegisterDialogViews(desk.Forms);
  if (std::string error = tarnix::LoadProgramFolder(*ctx); !error.empty()) {
    desk.Boxes.Show({"Can't find or read startup files tarnix125.ini or tarnix121.dat.  "
                     "Make sure they are in the same drive/directory used to start program.\n\n" + error,
                     "TARNIX", tarnix::MsgButtons::OK, tarnix::MsgIcon::Critical, tarnix::MsgAnswer::OK});
    return 1;
  }
  tarnix::LogForm model(*ctx, desk.View);
  tarnix::LogFormView window(model);
  window.show();
  return app.exec();
}
