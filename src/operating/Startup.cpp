#include "operating/Startup.h"

#include "config/AppPath.h"
#include "config/CountrySeed.h"
#include "config/SettingsFile.h"
#include "config/StartupData.h"

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
  ResetLog(ctx.Log);
  if (std::string error = LoadProgramFolder(ctx); !error.empty()) {
    desk.Boxes.Show({"Can't find or read startup files tarnix125.ini or tarnix121.dat.  "
                     "Make sure they are in the same drive/directory used to start program.\n\n" + error,
                     "TARNIX", MsgButtons::OK, MsgIcon::Critical, MsgAnswer::OK});
    return false;
  }
  // The country list is not needed by every contest: without it the program
  // goes on after saying so. A failed copy shows up as that missing list.
  SeedCountryFile(ctx.AppPath);
  CountryFileResult countries = ReadCountryFile(ctx.AppPath + "cty.dat", ctx.Countries);
  if (!countries.Ok)
    desk.Boxes.Show({countries.Message + "\n\n" + countries.Detail, "TARNIX", MsgButtons::OK, MsgIcon::Exclamation,
                     MsgAnswer::OK});
  CopyRadioDefaults(ctx.Config);
  StartupDataResult data = ReadStartupFile(ctx.AppPath + "tarnix121.dat", ctx.Data);
  if (!data.Ok) {
    desk.Boxes.Show({data.Error + "\n\n" + data.Detail, "TARNIX", MsgButtons::OK, MsgIcon::Critical, MsgAnswer::OK});
    return false;
  }
  for (int radio = 1; radio <= 2; ++radio)
    for (int band = 1; band <= BandIndexCount; ++band)
      ctx.Radio.LastFreqByBand[static_cast<std::size_t>(radio)][static_cast<std::size_t>(band)] =
          static_cast<float>(ctx.Data.BandFrequencies[static_cast<std::size_t>(band)]);
  return true;
}

}  // namespace tarnix
