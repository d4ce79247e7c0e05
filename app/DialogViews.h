#pragma once
// The forms' dialogs, registered with the form host under the names
// their models give.

namespace tarnix {

class QtFormHost;

// Registers each form's view under its model's name: ChCoForm, BandMode,
// UserInfo and AboutTarnix (modal and, for the welcome screen, modeless).
void RegisterDialogViews(QtFormHost& host);

}  // namespace tarnix
