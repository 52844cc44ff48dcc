#include "quote/header_fields.h"

#include <QAbstractButton>
#include <QHash>
#include <QLineEdit>
#include <QPointer>
#include <algorithm>
#include <array>

#include "platform/forms/form.h"
#include "platform/values/dates.h"
#include "platform/values/numbers.h"
#include "quote/default_terms.h"
#include "shared/column_lengths.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace cabecalho {

namespace {

using enum Tipo;
using enum Vazio;

using Consulta = Asked<QString> (*)(const QString&);

/// A lookup that the customer has no part in.
template <Consulta consulta>
Asked<QString> semCliente(const QString& texto, const QString& /*cliente*/) {
  return consulta(texto);
}

/// An entry of a list: its id is stored.
template <Consulta id, Consulta nome>
constexpr Campo lista(QStringView controle, QStringView coluna, QStringView recusa, Vazio vazio = Grava) {
  return {.controle = controle, .vazio = vazio, .busca = {coluna, &semCliente<id>, nome, recusa}};
}

constexpr auto kCampos = std::to_array<Campo>({
    {u"txtRowId", u"idprop_cmrc"},
    {u"txtCodigo", u"idprop_cmrc", Numero, SoLida, 10},
    {u"mskDtPropCmrc", u"data_prop_cmrc", Data, Nulo},
    {u"mskDataEven", u"data_even", Data, Nulo},
    {u"mskDtValidade", u"data_vali", Data, Nulo},
    {u"mskDtEntrega", u"data_entg", Data, Nulo},
    {u"lblDTDesativa", u"data_desa", Data},
    {u"lblDataFechamento", u"data_fech", Data},
    {u"lblNumePedido", {}},
    {.controle = u"opShowRoom", .coluna = u"show_excl", .tipo = Opcao, .vazio = Grava, .outro = u"opPV"},
    {u"cboCliente", u"nome_clie", Texto, GravaOuNulo, 0, {u"idclie", &semCliente<IdClientePorNome>}},
    {u"txtFoneExtra", u"fone_clie", Texto, GravaOuNulo, 50},
    {u"txtEmailExtra", u"emai_clie", Texto, Nulo},
    {u"cboClienteContato", u"nome_clie_cont", Texto, GravaOuNulo, 0, {u"idclie_cont", &IdClienteContato}},
    {u"txtFoneExtraContato", u"fone_clie_cont", Texto, GravaOuNulo},
    {u"txtEmailExtraContato", u"emai_clie_cont", Texto, Nulo},
    lista<IdVendedor, NomeConhecidoVendedor>(u"cboVendedor", u"idvend", u"Este(a) Vendedor(a) não Existe!"),
    lista<IdUsuario, UsuarioAtual>(u"cboRespAtendimento", u"idresv_prop_cmrc",
                                   u"Este Responsável não Existe!", Fora),
    lista<IdLocalVenda, DescricaoLocalVenda>(u"cboLocalVenda", u"idloca_veds",
                                             u"Este Local de Vendas não Existe!"),
    {u"txtNumePess", u"nume_pess", Pessoas, Grava, 9},
    lista<IdTipoMarketing, DescricaoTipoMarketing>(u"cboTipoMktg", u"idtipo_mktg",
                                                   u"Esta Estratégia (Tipo) de Marketing não Existe!"),
    lista<IdTipoEvento, DescricaoTipoEvento>(u"cboTipoEven", u"idtipo_even",
                                             u"Este Tipo de Evento não Existe!"),
    lista<IdTipoServico, DescricaoTipoServico>(u"cboTipoServ", u"idtipo_serv",
                                               u"Este Tipo de Serviço não Existe!"),
    {u"txtDesc", u"prop_cmrc_desc", Texto, Nulo, 100},
    {u"txtObserva", u"obse_prop_cmrc", Texto, Nulo, 200},
    {u"txtObservacao", {}, Texto, Nulo},
    {.controle = u"txtCondPagto",
     .coluna = u"txt_cond_pgto",
     .vazio = Nulo,
     .nulo = kCondPagtoPadrao,
     .trava = false},
    {u"lblDesconto", u"valo_dect", Valor},
    {u"lblPercDesconto", u"perc_dect", Valor},
});

/// What a new quote writes, in its order.
constexpr std::array<QStringView, 23> kOrdemDoNovo{
    u"idvend",      u"idclie",         u"idclie_cont",    u"idloca_veds",    u"idtipo_mktg",
    u"idtipo_even", u"idtipo_serv",    u"show_excl",      u"data_prop_cmrc", u"data_even",
    u"data_vali",   u"data_entg",      u"prop_cmrc_desc", u"nome_clie",      u"fone_clie",
    u"emai_clie",   u"nome_clie_cont", u"fone_clie_cont", u"emai_clie_cont", u"idresv_prop_cmrc",
    u"nume_pess",   u"obse_prop_cmrc", u"txt_cond_pgto"};

constexpr std::array<QStringView, 23> kOrdemDaAlteracao{
    u"idvend",      u"idloca_veds",    u"idclie",         u"idclie_cont",    u"idtipo_mktg",
    u"idtipo_even", u"idtipo_serv",    u"show_excl",      u"prop_cmrc_desc", u"data_prop_cmrc",
    u"data_even",   u"data_vali",      u"data_entg",      u"nome_clie",      u"fone_clie",
    u"emai_clie",   u"nome_clie_cont", u"fone_clie_cont", u"emai_clie_cont", u"idresv_prop_cmrc",
    u"nume_pess",   u"txt_cond_pgto",  u"obse_prop_cmrc"};

/// QStringView has no constant comparison.
constexpr bool igual(QStringView um, QStringView outro) {
  return std::equal(um.utf16(), um.utf16() + um.size(), outro.utf16(), outro.utf16() + outro.size());
}

constexpr bool grava(const Campo& campo, QStringView coluna) {
  return campo.digitado() && (igual(campo.coluna, coluna) || igual(campo.busca.coluna, coluna));
}

/// Each column that the table writes stands in the order once, and no other.
constexpr bool completa(std::span<const QStringView> ordem) {
  std::size_t colunas = 0;
  for (const Campo& campo : kCampos)
    for (const QStringView coluna : {campo.coluna, campo.busca.coluna}) {
      if (!campo.digitado() || coluna.isEmpty()) continue;
      ++colunas;
      if (std::ranges::count_if(ordem, [&](QStringView uma) { return igual(uma, coluna); }) != 1)
        return false;
    }
  return colunas == ordem.size();
}
static_assert(completa(kOrdemDoNovo));
static_assert(completa(kOrdemDaAlteracao));

QString pessoas(const QString& texto) {
  return texto.isEmpty() || values::isNumeric(texto) ? texto : values::toText(leNumero(texto));
}

/// Empty where there is no date.
QString dataHora(const QString& texto) {
  return values::isDate(texto) ? values::formatDate(texto, u"yyyymmdd hh:mm") : QString();
}

QString limpo(const Campo& campo) { return campo.tipo == Valor ? u"0"_s : QString(); }

Asked<QString> textoDe(const Campo& campo, const data::Recordset& rs) {
  const bool porId = campo.coluna.isEmpty();
  const QStringView coluna = porId ? campo.busca.coluna : campo.coluna;
  if (rs.isNull(coluna)) return data::known(campo.nulo.isEmpty() ? limpo(campo) : campo.nulo.toString());
  if (porId) return campo.busca.nome(rs.text(coluna));
  if (campo.tipo == Data) return data::known(rs.formatDate(coluna, u"dd/mm/yyyy"));
  if (campo.tipo == Valor) return data::known(rs.format(coluna, kMascaraMoeda));
  return data::known(rs.text(coluna));
}

Asked<QString> valorDe(const Campo& campo, QStringView coluna, const forms::Form& tela) {
  const QString digitado = texto(campo, tela);
  if (coluna == campo.busca.coluna) return campo.busca.id(digitado, texto(daColuna(u"nome_clie"), tela));
  if (campo.tipo == Data) return data::known(dataHora(digitado));
  const QString aparado = apara(digitado);
  return data::known(campo.tipo == Pessoas ? pessoas(aparado) : aparado);
}

/// Searched for on the screen once.
template <class Controle = QWidget>
Controle* controle(QStringView nome, const forms::Form& tela) {
  static QHash<QStringView, QPointer<QWidget>> achados;
  QPointer<QWidget>& achado = achados[nome];
  if (achado.isNull() || !tela.isAncestorOf(achado)) achado = tela.findChild<QWidget*>(nome.toString());
  return qobject_cast<Controle*>(achado.data());
}

}  // namespace

std::span<const Campo> campos() { return kCampos; }
std::span<const QStringView> ordemDaAlteracao() { return kOrdemDaAlteracao; }

const Campo& daColuna(QStringView coluna) {
  return *std::ranges::find_if(kCampos, [coluna](const Campo& campo) { return grava(campo, coluna); });
}

QList<QWidget*> controles(const Campo& campo, const forms::Form& tela) {
  QList<QWidget*> todos{controle(campo.controle, tela)};
  if (!campo.outro.isEmpty()) todos << controle(campo.outro, tela);
  return todos;
}

QString texto(const Campo& campo, const forms::Form& tela) {
  if (campo.tipo != Opcao) return forms::controlText(controle(campo.controle, tela));
  return controle<QAbstractButton>(campo.controle, tela)->isChecked() ? u"S"_s : u"E"_s;
}

void poe(const Campo& campo, const forms::Form& tela, const QString& texto) {
  if (campo.tipo != Opcao) return forms::setControlText(controle(campo.controle, tela), texto);
  if (texto.isEmpty()) return;
  controle<QAbstractButton>(texto == u"S" ? campo.controle : campo.outro, tela)->setChecked(true);
}

void limita(const Campo& campo, const forms::Form& tela) {
  QWidget* onde = controle(campo.controle, tela);
  if (campo.tipo == Numero) return forms::limitToDigits(qobject_cast<QLineEdit*>(onde), campo.tamanho);
  if (campo.tamanho > 0) return ::limita(onde, campo.tamanho);
  if (campo.tipo == Texto && campo.digitado() && !campo.coluna.isEmpty())
    limitaPelaColuna(onde, campo.coluna);
}

void limpa(const Campo& campo, const forms::Form& tela) {
  if (campo.tipo != Numero) poe(campo, tela, limpo(campo));
}

std::vector<Lido> pedeTextos(const data::Recordset& rs) {
  std::vector<Lido> lidos;
  for (const Campo& campo : kCampos)
    if (!campo.coluna.isEmpty() || campo.busca.nome != nullptr) lidos.push_back({&campo, textoDe(campo, rs)});
  return lidos;
}

std::vector<Gravado> pedeValores(const forms::Form& tela) {
  std::vector<Gravado> valores;
  for (const QStringView coluna : kOrdemDoNovo) {
    const Campo& campo = daColuna(coluna);
    if (campo.vazio == Fora && apara(texto(campo, tela)).isEmpty()) continue;
    // An id is written as it is, that of no entry too.
    const Vazio vazio = coluna == campo.busca.coluna ? Grava : campo.vazio;
    valores.push_back({coluna, valorDe(campo, coluna, tela), vazio});
  }
  return valores;
}

std::vector<Original> originais(const data::Recordset& rs, const forms::Form& tela) {
  std::vector<Original> todos;
  for (const QStringView coluna : kOrdemDaAlteracao) {
    const Campo& campo = daColuna(coluna);
    if (campo.tipo != Data && !rs.isNull(coluna))
      todos.push_back({coluna, texto(campo, tela), rs.text(coluna)});
  }
  return todos;
}

const QString* intocado(std::span<const Original> originais, QStringView coluna, const forms::Form& tela) {
  const auto mostra = [&](const Original& um) { return texto(daColuna(um.coluna), tela) == um.texto; };
  const auto desta = std::ranges::find(originais, coluna, &Original::coluna);
  if (desta == originais.end() || !mostra(*desta)) return nullptr;
  // Who was no entry of a list may be one by now.
  if (coluna == daColuna(coluna).busca.coluna && leNumero(desta->valor) == 0) return nullptr;
  // A contact is known by its customer too.
  const auto cliente = std::ranges::find(originais, QStringView(u"nome_clie"), &Original::coluna);
  const bool doContato = coluna == u"idclie_cont";
  return doContato && (cliente == originais.end() || !mostra(*cliente)) ? nullptr : &desta->valor;
}

}  // namespace cabecalho
