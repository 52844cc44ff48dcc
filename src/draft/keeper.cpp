#include "draft/keeper.h"

#include <QCryptographicHash>
#include <algorithm>
#include <utility>

#include "draft/screen_fields.h"
#include "platform/forms/form.h"
#include "platform/forms/process.h"
#include "platform/forms/rest.h"
#include "platform/values/dates.h"
#include "quote/situation.h"
#include "run/context.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace rascunho {

namespace {

const QString kTerminacao = u".rascunho"_s;
const QString kTela = u"frmPropCmrcTL"_s;
/// How long a user's command waits for the disk.
constexpr auto kEspera = 2s;

bool editando() { return situacao::editando() && forms::registry::find(kTela) != nullptr; }

/// The database of this run, without its name.
QString bancoAtual() {
  const Contexto& c = contexto();
  const QString nome = c.NomeServidor + u'^' + c.NomeBanco;
  return QString::fromLatin1(QCryptographicHash::hash(nome.toUtf8(), QCryptographicHash::Sha1).toHex());
}

bool meu(const Rascunho& rascunho) {
  return rascunho.usuario == QString::number(contexto().IdUsuarioAtual) &&
         rascunho.ambiente == contexto().Ambiente && rascunho.banco == bancoAtual();
}

/// "Orçamento não salvo de 16/03 14:32, Camila Siqueira Nunes, 7 itens".
QString frase(const Rascunho& rascunho) {
  const QDateTime quando = QDateTime::fromString(rascunho.quando, Qt::ISODate);
  QString frase = u"Orçamento não salvo de "_s + quando.toString(u"dd/MM hh:mm"_s);
  if (!apara(rascunho.cliente).isEmpty()) frase += u", "_s + apara(rascunho.cliente);
  return frase + u", "_s + rascunho.itens + (rascunho.itens == u"1" ? u" item"_s : u" itens"_s);
}

struct Achado {
  Oferta oferta;
  QString ordem;
};

/// What a file offers; nothing where it is another user's, or of another database.
std::optional<Achado> achado(const files::KeptFile::Left& arquivo) {
  const QString quando = arquivo.written.toString(u"dd/MM hh:mm"_s);
  const auto lido = arquivo.whole ? le(arquivo.content) : std::nullopt;
  const QString ordem = arquivo.written.toString(Qt::ISODate);
  if (!lido)
    return Achado{
        {arquivo.path, u"Orçamento não salvo de "_s + quando + u" está danificado e fica guardado"_s}, ordem};
  if (lido->versao != versaoDoPrograma())
    return Achado{{arquivo.path, u"Orçamento não salvo de "_s + quando + u" é da versão "_s + lido->versao +
                                     u" do programa e fica guardado"_s},
                  ordem};
  if (!meu(*lido)) return std::nullopt;
  return Achado{{arquivo.path, frase(*lido), true}, lido->quando};
}

}  // namespace

Guarda& guarda() {
  static Guarda uma;
  return uma;
}

void Guarda::liga(const QString& pasta) {
  desliga();
  arquivo_ = std::make_unique<files::KeptFile>(pasta, kTerminacao);
  forms::setRestObserver([this] { nota(); });
  forms::setEndObserver([this] { static_cast<void>(arquivo_->settle(kEspera)); });
  procura();
}

void Guarda::desliga() {
  forms::setRestObserver({});
  forms::setEndObserver({});
  arquivo_.reset();
  ofertas_.clear();
  editava_ = tomado_ = escrito_ = false;
  ultimo_.clear();
}

void Guarda::nota() {
  if (const bool edita = editando(); edita != std::exchange(editava_, edita)) {
    edita ? comeca() : encerra();
    Q_EMIT ofertasMudaram();
  }
  if (!editava_) return;
  QString agora = retrato();
  if (agora == ultimo_) return;
  ultimo_ = std::move(agora);
  escrito_ = true;
  arquivo_->keep(textoDoRascunho({}));
}

/// Before anything is typed there is nothing to lose.
void Guarda::comeca() {
  if (tomado_) return;
  ultimo_ = retrato();
  lido_ = situacao::alterando() ? resumoDoLido() : QString();
}

void Guarda::encerra() {
  arquivo_->drop();
  tomado_ = escrito_ = false;
  ultimo_.clear();
  procura();
}

QByteArray Guarda::textoDoRascunho(const Gravacao& gravacao) const {
  const Contexto& c = contexto();
  const auto* itens = qobject_cast<const forms::FlexGrid*>(forms::findControl(kTela, u"Flex"_s));
  return texto({.versao = versaoDoPrograma(),
                .usuario = QString::number(c.IdUsuarioAtual),
                .ambiente = c.Ambiente,
                .banco = bancoAtual(),
                .quando = values::now().toString(u"yyyy-MM-ddThh:mm:ss"_s),
                .cliente = forms::controlText(forms::findControl(kTela, u"cboCliente"_s)),
                .itens = QString::number(itens == nullptr ? 0 : itens->grid().rows() - 1),
                .modo = c.ModoOrcamento,
                .modoItem = c.ModoItem,
                .foco = campoAtual(),
                .orcamento = lido_.isEmpty() ? QString()
                                             : forms::controlText(forms::findControl(kTela, u"txtRowId"_s)),
                .lido = lido_,
                .gravacao = gravacao,
                .retrato = ultimo_});
}

void Guarda::marcaGravacao(const Gravacao& gravacao) {
  if (!arquivo_ || !escrito_) return;
  arquivo_->keep(textoDoRascunho(gravacao));
  if (arquivo_->settle(kEspera)) return;
  // Better no draft than one that is stored and doesn't say so.
  arquivo_->drop();
  static_cast<void>(arquivo_->settle(kEspera));
}

void Guarda::gravado() {
  if (!arquivo_) return;
  arquivo_->drop();
  escrito_ = false;
}

void Guarda::procura() {
  arquivo_->look([this](const QList<files::KeptFile::Left>& arquivos) {
    QMetaObject::invokeMethod(
        this, [this, arquivos] { recebe(arquivos); }, Qt::QueuedConnection);
  });
}

void Guarda::recebe(const QList<files::KeptFile::Left>& arquivos) {
  QList<Achado> achados;
  for (const auto& arquivo : arquivos)
    if (const auto um = achado(arquivo)) achados << *um;
  std::ranges::sort(achados, [](const Achado& a, const Achado& b) {
    return std::pair(a.oferta.recuperavel, a.ordem) > std::pair(b.oferta.recuperavel, b.ordem);
  });
  ofertas_.clear();
  for (const Achado& um : achados) ofertas_ << um.oferta;
  Q_EMIT ofertasMudaram();
}

std::optional<Rascunho> Guarda::toma() {
  if (ofertas_.isEmpty()) return std::nullopt;
  const auto arquivo = arquivo_->take(ofertas_.first().caminho, kEspera);
  auto lido = arquivo && arquivo->whole ? le(arquivo->content) : std::nullopt;
  tomado_ = lido.has_value();
  if (tomado_) tomada_ = ofertas_.takeFirst();
  if (arquivo && !lido) arquivo_->giveBack();
  if (!lido) procura();
  return lido;
}

void Guarda::devolve() {
  tomado_ = false;
  arquivo_->giveBack();
  ofertas_.prepend(tomada_);
  Q_EMIT ofertasMudaram();
}

void Guarda::apaga() {
  if (!tomado_) {
    if (ofertas_.isEmpty() || !arquivo_->take(ofertas_.first().caminho, kEspera)) return procura();
    ofertas_.removeFirst();
  }
  encerra();
  Q_EMIT ofertasMudaram();
}

}  // namespace rascunho
