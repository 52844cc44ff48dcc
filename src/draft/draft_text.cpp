#include "draft/draft_text.h"

#include <QList>
#include <algorithm>
#include <utility>

#include "draft/screen_fields.h"
#include "run/program_title.h"

using namespace Qt::StringLiterals;

namespace rascunho {

namespace {

const QString kPrimeira = u"zarim-rascunho"_s;
const QString kTelas = u"telas"_s;

/// The lines of the head, by name.
constexpr std::pair<QStringView, QString Rascunho::*> kCabecalho[] = {
    {u"versao", &Rascunho::versao},     {u"usuario", &Rascunho::usuario},
    {u"ambiente", &Rascunho::ambiente}, {u"banco", &Rascunho::banco},
    {u"quando", &Rascunho::quando},     {u"cliente", &Rascunho::cliente},
    {u"itens", &Rascunho::itens},       {u"modo", &Rascunho::modo},
    {u"modoItem", &Rascunho::modoItem}, {u"orcamento", &Rascunho::orcamento},
    {u"lido", &Rascunho::lido},         {u"foco", &Rascunho::foco},
};
constexpr std::pair<QStringView, QString Gravacao::*> kGravacao[] = {
    {u"gravando", &Gravacao::orcamento},
    {u"gravandoConteudo", &Gravacao::conteudo},
};

}  // namespace

QString versaoDoPrograma() { return kTitulo.section(u' ', 1); }

QByteArray texto(const Rascunho& rascunho) {
  QString linhas = kPrimeira + u'\n';
  const auto linha = [&linhas](QStringView nome, const QString& valor) {
    if (!valor.isEmpty()) linhas += nome.toString() + u'\t' + emUmaLinha(valor) + u'\n';
  };
  for (const auto& [nome, membro] : kCabecalho) linha(nome, rascunho.*membro);
  for (const auto& [nome, membro] : kGravacao) linha(nome, rascunho.gravacao.*membro);
  return (linhas + kTelas + u'\n').toUtf8() + rascunho.retrato.toUtf8();
}

std::optional<Rascunho> le(const QByteArray& texto) {
  const QString linhas = QString::fromUtf8(texto);
  if (!linhas.startsWith(kPrimeira + u'\n')) return std::nullopt;
  const qsizetype telas = linhas.indexOf(u'\n' + kTelas + u'\n');
  if (telas < 0) return std::nullopt;
  Rascunho rascunho;
  for (const QStringView linha : QStringView(linhas).first(telas).split(u'\n')) {
    const qsizetype meio = std::max<qsizetype>(linha.indexOf(u'\t'), 0);
    const QString valor = comoEra(linha.sliced(std::min(meio + 1, linha.size())));
    for (const auto& [nome, membro] : kCabecalho)
      if (linha.first(meio) == nome) rascunho.*membro = valor;
    for (const auto& [nome, membro] : kGravacao)
      if (linha.first(meio) == nome) rascunho.gravacao.*membro = valor;
  }
  if (rascunho.modo != u"I" && rascunho.modo != u"A") return std::nullopt;
  rascunho.retrato = linhas.sliced(telas + kTelas.size() + 2);
  return rascunho;
}

}  // namespace rascunho
