#include "shared/validity.h"

#include "platform/values/dates.h"

using namespace Qt::StringLiterals;

Prazo prazoDaValidade(const QString& validade, QDate hoje) {
  constexpr int kSemana = 7;
  if (!values::isDate(validade)) return {};
  const QDate dia = values::toDate(validade).date();
  const auto dias = hoje.daysTo(dia);
  if (dias < 0) return {Prazo::Vencido, u"vencido em "_s + values::formatDate(validade, u"dd/mm")};
  if (dias > kSemana) return {};
  return {Prazo::Vence, dias == 0   ? u"vence hoje"_s
                        : dias == 1 ? u"vence em 1 dia"_s
                                    : u"vence em %1 dias"_s.arg(dias)};
}
