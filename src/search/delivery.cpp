#include "search/delivery.h"

#include "platform/forms/form.h"

namespace pesquisa {

void entrega(std::span<const Entrega> tabela, const QString& chamadora, const forms::GridModel& grade) {
  for (const auto& linha : tabela) {
    if (chamadora != linha.chamadora) continue;
    const QString celula = grade.text(grade.row(), linha.coluna);
    const QString tela = linha.tela.isEmpty() ? chamadora : linha.tela.toString();
    if (QObject* controle = forms::findControl(tela, linha.controle.toString()))
      forms::setControlText(controle, linha.leitura ? linha.leitura(celula) : celula);
  }
}

QString contagem(int quantos, const QString& um, const QString& varios) {
  return QString::number(quantos) + u' ' + (quantos == 1 ? um : varios);
}

}  // namespace pesquisa
