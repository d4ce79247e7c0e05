// tarnix: the desktop program.

#include <QApplication>

#include "DialogViews.h"
#include "LogFormView.h"
#include "config/AppPath.h"
#include "operating/AboutTarnix.h"
#include "operating/Context.h"
#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "operating/Startup.h"
#include "platform/qt/QtPlatform.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("TARNIX"));

  auto ctx = tarnix::MakeContext(tarnix::ResolveAppPath());
  tarnix::QtPlatform desk;
  tarnix::RegisterDialogViews(desk.Forms);
  tarnix::AboutTarnix welcome(desk.Timers, true);
  desk.Forms.ShowModeless(welcome);
  if (!tarnix::StartProgram(*ctx, desk.View)) return 1;

  // Until the keyers and the radios are connected, the window's requests
  // to them are only written down.
  tarnix::RecordingStation station;
  tarnix::LogForm model(*ctx, desk.View, station.View);
  tarnix::LogFormView window(model);
  window.show();
  model.CheckRecovery();
  if (model.EndRequested) return 1;
  window.Refresh();
  return app.exec();
}
