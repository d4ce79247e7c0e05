// tarnix: the desktop program.

#include <QApplication>

#include "DialogViews.h"
#include "LogFormView.h"
#include "config/AppPath.h"
#include "operating/Context.h"
#include "operating/LogForm.h"
#include "platform/qt/QtPlatform.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("TARNIX"));

  auto ctx = tarnix::MakeContext(tarnix::ResolveAppPath());
  tarnix::QtPlatform desk;
  tarnix::RegisterDialogViews(desk.Forms);
  tarnix::LogForm model(*ctx, desk.View);
  tarnix::LogFormView window(model);
  window.show();
  return app.exec();
}
