#include "shared/validity.h"

#include "platform/values/dates.h"

using namespace Qt::StringLiterals;

Prazo prazoDaValidade(const QString& validade, QDate hoje) {
  if (!values::isDate(validade)) return {};
  const auto dias = hoje.daysTo(values::toDate(validade).date());
  if (dias < 0) return {Prazo::Vencido, u"vencido em "_s + values::formatDate(validade, u"dd/mm")};
  if (dias == 0) return {Prazo::Vence, u"vence hoje"_s};
  constexpr int kSemana = 7;
  if (dias > kSemana) return {};
  return {Prazo::Vence, dias == 1 ? u"vence em 1 dia"_s : u"vence em %1 dias"_s.arg(dias)};
}
