#include "LookupCommand.h"

#include <memory>
#include <ostream>

#include "config/AppPath.h"
#include "config/CountrySeed.h"
#include "core/Text.h"
#include "operating/Context.h"
#include "operating/Startup.h"
#include "rules/Countries.h"

namespace tarnix::cli {

int Lookup(const std::vector<std::string>& calls, std::ostream& out, std::ostream& err) {
  if (calls.empty()) {
    err << "tarnix-cli: lookup wants one or more calls\n";
    return 2;
  }
  auto ctx = MakeContext(ResolveAppPath());
  if (std::string error = LoadProgramFolder(*ctx); !error.empty())
    err << "tarnix-cli: " << error << " (going on with the default settings)\n";
  if (auto problems = SeedCountryFile(ctx->AppPath)) err << "tarnix-cli: " << *problems << "\n";

  auto countries = std::make_unique<CountryData>();
  CountryFileResult read = ReadCountryFile(ctx->AppPath + "cty.dat", *countries);
  if (!read.Ok) err << "tarnix-cli: " << read.Message << "\ntarnix-cli: " << read.Detail << "\n";

  for (const std::string& typed : calls) {
    // The call box upper-cases what is typed; the logged call keeps its
    // whole text for the WPX prefix and the zone by call area.
    const std::string original = UCase(Trim(typed));
    std::string call = original;
    int16_t row = FindCountry(*countries, ctx->Contest, call);
    const CountryRecord& country = countries->CountryTable[row];
    // No country: zone and heading stay blank like the name.
    std::string zone, heading;
    if (countries->LookupZone != 0)
      zone = std::to_string(countries->LookupZone);
    else if (row != 0)
      zone = std::to_string(static_cast<int>(Val(country.Zone)));
    if (row != 0) heading = std::to_string(GetHeading(*countries, ctx->Config, row));
    std::string wpx = GetWPXPrefix(original);
    out << call << '\t' << row << '\t' << Trim(country.Name) << '\t' << zone << '\t' << country.Continent << '\t'
        << wpx << '\t' << GetNAZone(original) << '\t' << NAClassText(ClassifyNAPrefix(wpx)) << '\t' << heading
        << '\n';
  }
  return read.Ok ? 0 : 1;
}

}  // namespace tarnix::cli
