#include "platform/qt/QtConvert.h"

namespace tarnix {

QColor ColourFromBgr(int32_t bgr) {
  return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

QStringList NameFiltersFromPipes(const std::string& filter) {
  QStringList parts = ToQt(filter).split(u'|');
  QStringList filters;
  // A filter with no pipe is a single description-less pattern list.
  if (parts.size() == 1) {
    if (!parts[0].trimmed().isEmpty()) filters << parts[0].trimmed();
    return filters;
  }
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
    for (QString& p : patterns) {
      p = p.trimmed();
      if (p == u"*.*") p = QStringLiteral("*");
    }
    QString description = parts[i].trimmed();
    // Qt reads the patterns from the parentheses, so the ones shown in the
    // description are replaced by the pair's own pattern list.
    if (qsizetype open = description.lastIndexOf(u'('); open >= 0 && description.endsWith(u')'))
      description = description.left(open).trimmed();
    filters << description + QStringLiteral(" (") + patterns.join(u' ') + u')';
  }
  return filters;
}

}  // namespace tarnix
