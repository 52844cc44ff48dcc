#include "draft/keeper.h"

#include <QCryptographicHash>
#include <algorithm>
#include <utility>

#include "draft/screen_fields.h"
#include "platform/data/odbc_string.h"
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

/// The database of this run by what it is, without its name: two drives may have one text in server.ini.
QString bancoAtual() {
  const Contexto& c = contexto();
  const QString lugar =
      data::placeOf(c.StringConexaoMSSQL.isEmpty() ? c.StringConexaoFirebird : c.StringConexaoMSSQL);
  return QString::fromLatin1(QCryptographicHash::hash(lugar.toUtf8(), QCryptographicHash::Sha1).toHex());
}

/// The lines of the quote; one that is in the assembly is none of them yet, and counts.
int itensAtuais() {
  const auto linhas = [](const QString& tela, const QString& nome) {
    QObject* controle = forms::findControl(tela, nome);
    const auto* vista = qobject_cast<const forms::FlexGrid*>(controle);
    const auto* modelo = vista != nullptr ? &vista->grid() : qobject_cast<const forms::GridModel*>(controle);
    return modelo == nullptr ? 0 : modelo->rows() - 1;
  };
  const QString montagem = u"frmMontarProduto"_s;
  const forms::Form* aberta = forms::registry::find(montagem);
  const bool montando = aberta != nullptr && aberta->isVisible() &&
                        (linhas(montagem, u"Flex"_s) > 0 || linhas(kTela, u"ItemNaMontagem"_s) > 0);
  return linhas(kTela, u"Flex"_s) + (montando ? 1 : 0);
}

bool meu(const Rascunho& rascunho) {
  const Contexto& c = contexto();
  return rascunho.usuario == QString::number(c.IdUsuarioAtual) && rascunho.ambiente == c.Ambiente &&
         rascunho.banco == bancoAtual();
}

/// "Não salvo: Nr. 16, em alteração, Camila Siqueira Nunes, 7 itens, de 16/03 14:32". Where there is not room
/// for all of it, the end is what can be done without.
QString frase(const Rascunho& rascunho) {
  const QDateTime quando = QDateTime::fromString(rascunho.quando, Qt::ISODate);
  QStringList partes{rascunho.orcamento.isEmpty() ? u"novo"_s
                                                  : u"Nr. "_s + rascunho.orcamento + u", em alteração"_s};
  if (const QString cliente = apara(rascunho.cliente); !cliente.isEmpty()) partes << cliente;
  partes << rascunho.itens + (rascunho.itens == u"1" ? u" item"_s : u" itens"_s)
         << u"de "_s + quando.toString(u"dd/MM hh:mm"_s);
  return u"Não salvo: "_s + partes.join(u", "_s);
}

struct Achado {
  Oferta oferta;
  QString ordem;
};

/// What a file offers; nothing where it is another user's, or of another database.
std::optional<Achado> achado(const files::KeptFile::Left& arquivo) {
  const auto lido = arquivo.whole ? le(arquivo.content) : std::nullopt;
  if (lido && !meu(*lido)) return std::nullopt;
  const QString nome = u"Orçamento não salvo de "_s + arquivo.written.toString(u"dd/MM hh:mm"_s);
  const QString ordem = arquivo.written.toString(Qt::ISODate);
  if (!lido) return Achado{{arquivo, nome + u" está danificado e fica guardado"_s}, ordem};
  if (lido->versao != versaoDoPrograma())
    return Achado{{arquivo, nome + u" é da versão "_s + lido->versao + u" do programa e fica guardado"_s},
                  ordem};
  return Achado{{arquivo, frase(*lido), true}, lido->quando};
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
  return texto({.versao = versaoDoPrograma(),
                .usuario = QString::number(c.IdUsuarioAtual),
                .ambiente = c.Ambiente,
                .banco = bancoAtual(),
                .quando = values::now().toString(u"yyyy-MM-ddThh:mm:ss"_s),
                .cliente = forms::controlText(forms::findControl(kTela, u"cboCliente"_s)),
                .itens = QString::number(itensAtuais()),
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
  // A draft that is stored and doesn't say so is asked about; one that is gone before a commit that fails is
  // lost.
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
  const auto arquivo = arquivo_->take(ofertas_.first().arquivo.path, kEspera);
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

void Guarda::deixa() {
  if (!arquivo_) return;
  arquivo_->giveBack();
  editava_ = tomado_ = escrito_ = false;
  ultimo_.clear();
  procura();
}

void Guarda::apaga() {
  encerra();
  Q_EMIT ofertasMudaram();
}

bool Guarda::apaga(const Oferta& oferta) {
  const auto arquivo = arquivo_->take(oferta.arquivo.path, kEspera);
  if (arquivo != oferta.arquivo) {
    if (arquivo) arquivo_->giveBack();
    procura();
    return false;
  }
  ofertas_.removeIf([&](const Oferta& uma) { return uma.arquivo.path == oferta.arquivo.path; });
  apaga();
  return true;
}

}  // namespace rascunho
