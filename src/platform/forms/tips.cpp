#include "platform/forms/tips.h"

#include <QTextDocument>

namespace forms {

QString asTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

}  // namespace forms
