#include "platform/web/pdf/pdf_trial.h"

namespace web {

bool canBeDrawn(const QByteArray&) { return true; }  // no second process stands beside this one here

}  // namespace web
