#include "shared/validity.h"

#include "platform/values/dates.h"

using namespace Qt::StringLiterals;

Prazo::Estado estadoDaValidade(QDate validade, QDate hoje) {
  constexpr int kSemana = 7;
  if (validade < hoje) return Prazo::Vencido;
  return hoje.daysTo(validade) <= kSemana ? Prazo::Vence : Prazo::SemPressa;
}

Prazo prazoDaValidade(const QString& validade, QDate hoje) {
  if (!values::isDate(validade)) return {};
  const QDate dia = values::toDate(validade).date();
  Prazo prazo{estadoDaValidade(dia, hoje), {}};
  const auto dias = hoje.daysTo(dia);
  if (prazo.estado == Prazo::Vencido)
    prazo.texto = u"vencido em "_s + values::formatDate(validade, u"dd/mm");
  else if (prazo.estado == Prazo::Vence)
    prazo.texto = dias == 0   ? u"vence hoje"_s
                  : dias == 1 ? u"vence em 1 dia"_s
                              : u"vence em %1 dias"_s.arg(dias);
  return prazo;
}
