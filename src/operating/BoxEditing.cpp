#include "operating/BoxEditing.h"

#include <algorithm>

namespace tarnix {

void EditFocusedBox(LogForm& form, int keyCode) {
  int box = form.FocusedBox;
  if (box != CallBox && box != ExchangeBox) return;
  const TextBox& b = form.InData[static_cast<std::size_t>(box)];
  std::string text = b.Text;
  int size = static_cast<int>(text.size());
  int start = std::clamp(b.SelStart, 0, size);
  int length = std::clamp(b.SelLength, 0, size - start);
  auto erase = [&](int from, int count) {
    text.erase(static_cast<std::size_t>(from), static_cast<std::size_t>(count));
    form.InData_Change(box, text, from);
  };
  switch (keyCode) {
    case KeyBackspace:
      if (length > 0) erase(start, length);
      else if (start > 0) erase(start - 1, 1);
      break;
    case KeyDelete:
      if (length > 0) erase(start, length);
      else if (start < size) erase(start, 1);
      break;
    case KeyLeft: form.InData_SelChange(box, std::max(start - 1, 0), 0); break;
    case KeyRight: form.InData_SelChange(box, std::min(start + length + 1, size), 0); break;
    case KeyHome: form.InData_SelChange(box, 0, 0); break;
    case KeyEnd: form.InData_SelChange(box, size, 0); break;
    default: break;
  }
}

}  // namespace tarnix
