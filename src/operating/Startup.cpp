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

}  // namespace tarnix
