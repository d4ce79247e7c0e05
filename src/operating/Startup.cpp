#include "operating/Startup.h"

#include "config/AppPath.h"
#include "config/SettingsFile.h"

namespace tarnix {

std::string SettingsPath(const Context& ctx) { return ctx.AppPath + "tarnix125.ini"; }

std::string LoadProgramFolder(Context& ctx) {
  if (auto error = SeedProgramFolder(ctx.AppPath, ShippedDataDir())) return *error;
  SettingsResult result = ReadSettings(SettingsPath(ctx), ctx.Config, ctx.AppPath);
  if (!result.Ok) return result.Error;
  if (result.ProfilesRenamed) {
    if (auto error = WriteSettings(SettingsPath(ctx), ctx.Config)) return *error;
  }
  return {};
}

void CopyRadioDefaults(Settings& settings) {
  for (int r = 1; r <= 2; ++r) {
    RadioRecord& radio = settings.Radio[static_cast<std::size_t>(r)];
    for (int row = 1; row <= RadioModelRows; ++row) {
      const RadioRecord& model = settings.RadioDefaultSettings[static_cast<std::size_t>(row)];
      if (model.Name != radio.Name) continue;
      radio = model;
      break;
    }
  }
}

bool StartProgram(Context& ctx, Platform& desk) {
  ctx.Log.LogState = LogStateKind::None;
  ctx.DialogCancelled = false;
  ctx.ReloadFlag = false;
  ResetLog(ctx.Log);
  if (std::string error = LoadProgramFolder(ctx); !error.empty()) {
    desk.Boxes.Show({"Can't find or read startup files tarnix125.ini or tarnix121.dat.  "
                     "Make sure they are in the same drive/directory used to start program.\n\n" + error,
                     "TARNIX", MsgButtons::OK, MsgIcon::Critical, MsgAnswer::OK});
    return false;
  }
  CopyRadioDefaults(ctx.Config);
  return true;
}

}  // namespace tarnix
