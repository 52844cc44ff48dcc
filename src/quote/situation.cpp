#include "quote/situation.h"

#include "run/context.h"

using namespace Qt::StringLiterals;

namespace situacao {

namespace {

struct Regra {
  Comando comando;
  bool Situacao::*marca;
  bool recusada;  ///< the value of the mark that forbids the command
  QStringView motivo;
};
// The first that holds is said.
constexpr Regra kRegras[] = {
    {Comando::Alterar, &Situacao::desativado, true, u"O Registro Está Desativado."},
    {Comando::Alterar, &Situacao::fechado, true,
     u"O Registro Já Está Fechado!\rSelecione a opção [Abrir] antes de entrar no modo de alteração"},
    {Comando::Desativar, &Situacao::desativado, true, u"O Registro Já está como Desativado."},
    {Comando::Desativar, &Situacao::fechado, true, u"O Registro Já Está Fechado!"},
    {Comando::Reativar, &Situacao::desativado, false, u"O Registro Já está como Ativo."},
    {Comando::Reativar, &Situacao::fechado, true, u"O Registro Já Está Fechado!"},
    {Comando::Fechar, &Situacao::desativado, true, u"O Registro Está Desativado!"},
    {Comando::Fechar, &Situacao::fechado, true, u"O Registro Já Está Fechado!"},
    {Comando::Reabrir, &Situacao::desativado, true, u"O Registro Está Desativado!"},
    {Comando::Reabrir, &Situacao::fechado, false, u"O Registro não está Fechado!"},
};

}  // namespace

bool incluindo() { return contexto().ModoOrcamento == u"I"; }
bool alterando() { return contexto().ModoOrcamento == u"A"; }
bool editando() { return incluindo() || alterando(); }

void entra(const QString& modoOrcamento, const QString& modoItem) {
  contexto().ModoOrcamento = modoOrcamento;
  contexto().ModoItem = modoItem;
}

void encerra() { contexto().ModoOrcamento = u" "_s; }

std::optional<Recusa> recusa(Comando comando, const Situacao& situacao) {
  for (const Regra& regra : kRegras) {
    if (regra.comando != comando || situacao.*regra.marca != regra.recusada) continue;
    const QString antes =
        comando == Comando::Alterar ? QString() : u"Impossibilidade de Executar o Comando!\r"_s;
    // What can't be reopened since it is open stays on the screen.
    return Recusa{antes + regra.motivo.toString(), comando != Comando::Reabrir || regra.recusada};
  }
  return std::nullopt;
}

}  // namespace situacao
