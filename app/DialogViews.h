#pragma once
// The modal forms' dialogs, registered with the form host under the names
// their models give.

namespace tarnix {

class QtFormHost;

// Registers ChCoFormView for "ChCoForm" and BandModeView for "BandMode".
void RegisterDialogViews(QtFormHost& host);

}  // namespace tarnix
