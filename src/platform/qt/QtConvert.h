#pragma once
// Conversions between the models' plain values and Qt's types.

#include <QColor>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <string>

namespace tarnix {

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }
inline std::string FromQt(const QString& text) { return text.toStdString(); }

// A model colour (24-bit blue-green-red: 255 is red) as a QColor.
QColor ColourFromBgr(int32_t bgr);

// A file-type filter of the form "TNX logs (*.TNX)|*.TNX|All files (*.*)|*.*"
// as the name filters QFileDialog takes: {"TNX logs (*.TNX)", "All files (*)"}.
// A pattern list "*.a;*.b" becomes "*.a *.b", and "*.*" becomes "*" because on
// Linux "*.*" would hide every file without a dot in its name.
QStringList NameFiltersFromPipes(const std::string& filter);

}  // namespace tarnix
