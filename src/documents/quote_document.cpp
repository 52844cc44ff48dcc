// Which blocks make up a quote's document, in each model, and in what order they are written.
#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "documents/document_names.h"
#include "documents/document_values.h"
#include "documents/documents.h"
#include "documents/frame_blocks.h"
#include "documents/html_text.h"
#include "documents/quote_blocks.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

struct Dados {
  QString id, caminho;
  QString titulo;     ///< of the page
  QString relatorio;  ///< of the report, with the quote's date
};
using Bloco = QString (*)(const Dados&);

const QString kComFotos = u"S"_s;

/// The text of the block before goes out once more.
constexpr Bloco kRepete = nullptr;
constexpr Bloco kVazio = [](const Dados&) { return QString(); };

// Frame
constexpr Bloco kHead = [](const Dados& d) { return AbreDocumentoHTML(d.titulo); };
constexpr Bloco kHeadEstilos = [](const Dados& d) { return AbreDocumentoHTMLEstilos(d.titulo); };
constexpr Bloco kHeadSimples = [](const Dados& d) { return AbreDocumentoSimplesHTML(d.titulo); };
constexpr Bloco kEmpresa = [](const Dados&) { return CabecalhoEmpresaHTML(); };
constexpr Bloco kLogo = [](const Dados&) { return CabecalhoLogoHTML(); };
constexpr Bloco kFixo = [](const Dados&) { return CabecalhoFixoHTML(); };
constexpr Bloco kRelatorio = [](const Dados& d) { return NomeRelatorioHTML(d.relatorio, u"center"_s); };
constexpr Bloco kRelatorioEstilos = [](const Dados& d) { return NomeRelatorioEstilosHTML(d.relatorio); };
constexpr Bloco kSemRelatorio = [](const Dados& d) { return TextoVazio2(d.relatorio); };
constexpr Bloco kRodape = [](const Dados&) { return RodapeOrcaHTML(); };
constexpr Bloco kRodapeEstilos = [](const Dados&) { return RodapeOrcaEstilosHTML(); };
constexpr Bloco kSemRodape = [](const Dados&) { return TextoVazio(); };

// Customer and general data
constexpr Bloco kCliente = [](const Dados& d) { return DadosClienteOrcaHTML(d.id); };
constexpr Bloco kClienteEstilos = [](const Dados& d) { return DadosClienteOrcaEstilosHTML(d.id); };
constexpr Bloco kClienteGrade = [](const Dados& d) { return DadosClienteOrcaGradeHTML(d.id); };
constexpr Bloco kClienteResumo = [](const Dados& d) { return DadosClienteOrcaResumoHTML(d.id); };
constexpr Bloco kGerais = [](const Dados& d) { return DadosGeraisOrcaHTML(d.id); };
constexpr Bloco kGeraisEstilos = [](const Dados& d) { return DadosGeraisOrcaEstilosHTML(d.id); };
constexpr Bloco kGeraisResumo = [](const Dados& d) { return DadosGeraisOrcaResumoHTML(d.id); };

// Items and conditions
constexpr Bloco kItens = [](const Dados& d) { return ItensOrcaHTML(d.id, kComFotos); };
constexpr Bloco kItensEstilos = [](const Dados& d) {
  return ItensOrcaEstilosHTML(d.id, kComFotos, d.caminho);
};
constexpr Bloco kItensGrade = [](const Dados& d) { return ItensOrcaGradeHTML(d.id, kComFotos, d.caminho); };
constexpr Bloco kItensFoto = [](const Dados& d) { return ItensOrcaFotoHTML(d.id, kComFotos); };
constexpr Bloco kGradeOuDetalhe = [](const Dados& d) {
  return (documento().ExibeComposicao ? ItensOrcaGradeHTML : ItensOrcaDetalheHTML)(d.id, kComFotos,
                                                                                   d.caminho);
};
constexpr Bloco kCondicoes = [](const Dados& d) { return CondicoesOrcaHTML(d.id); };
constexpr Bloco kPagamento = [](const Dados& d) { return CondPgtoOrcaHTML(d.id); };

/// One block in each of the models "", "1", "2", "3".
using Passo = std::array<Bloco, 4>;

constexpr std::array<Passo, 8> kOrcamento{{
    {kHead, kHeadEstilos, kHeadSimples, kHead},
    {kEmpresa, kLogo, kFixo, kEmpresa},
    {kRelatorio, kRelatorioEstilos, kSemRelatorio, kRelatorio},
    {kCliente, kClienteEstilos, kClienteGrade, kClienteResumo},
    {kGerais, kGeraisEstilos, kVazio, kGeraisResumo},
    {kItens, kItensEstilos, kGradeOuDetalhe, kItensFoto},
    {kVazio, kVazio, kCondicoes, kRepete},
    {kRodape, kRodapeEstilos, kSemRodape, kRepete},
}};

constexpr std::array<Passo, 6> kDetalhe{{
    {kHeadSimples, kHeadSimples, kHeadSimples, kHeadSimples},
    {kCliente, kClienteEstilos, kClienteGrade, kClienteResumo},
    {kGerais, kGeraisEstilos, kVazio, kGeraisResumo},
    {kItens, kItensEstilos, kGradeOuDetalhe, kItensFoto},
    {kPagamento, kPagamento, kPagamento, kPagamento},
    {kRodape, kRodapeEstilos, kSemRodape, kRepete},
}};

constexpr std::array<Bloco, 8> kGrade{kHeadSimples, kFixo,       kSemRelatorio, kClienteGrade,
                                      kVazio,       kItensGrade, kCondicoes,    kSemRodape};

/// Writes one block after the other, and the closing.
void escreve(std::span<const Bloco> blocos, Dados dados) {
  html::Iniciado arquivo(dados.caminho);
  dados.caminho = arquivo.parte();
  QString texto;
  for (const Bloco bloco : blocos) {
    if (bloco != kRepete) texto = bloco(dados);
    html::acrescenta(dados.caminho, texto);
  }
  html::acrescenta(dados.caminho, FechaDocumentoHTML());
  arquivo.pronto();
}

/// The same by the model of the company. An unknown model has the blocks that all have, the others are empty.
void escreveModelo(std::span<const Passo> passos, const QString& modelo, const Dados& dados) {
  const qsizetype coluna = QStringList{u""_s, u"1"_s, u"2"_s, u"3"_s}.indexOf(modelo);
  std::vector<Bloco> blocos;
  for (const Passo& passo : passos) {
    const bool igual = std::ranges::all_of(passo, [&](Bloco bloco) { return bloco == passo.front(); });
    if (coluna >= 0 || igual)
      blocos.push_back(passo[static_cast<std::size_t>(std::max<qsizetype>(coluna, 0))]);
    else
      blocos.push_back(kVazio);
  }
  escreve(blocos, dados);
}

QString modeloDaEmpresa() { return waitFor(ParametroEmpresa(u"MODELO_PROP_CMRC"_s)); }

QString comData(const QString& titulo, const QString& id) {
  return titulo + u" - "_s + diaDaData(waitFor(DataOrcamento(id)));
}

}  // namespace

void MontaOrcaHTML(qint32 id, const QString& caminho) {
  const QString modelo = modeloDaEmpresa();
  const QString chave = QString::number(id);
  const QString titulo = u"Orçamento de Venda - "_s + numeroDocumento(id);
  escreveModelo(kOrcamento, modelo, {chave, caminho, titulo, comData(titulo, chave)});
}

void MontaOrcaGradeHTML(qint32 id, const QString& caminho) {
  const QString chave = QString::number(id);
  const bool aberto = waitFor(DataFechamentoOrcamento(chave)).isEmpty();
  const QString titulo =
      (aberto ? u"Orçamento de Venda - "_s : u"Pedido de Venda - "_s) + numeroDocumento(id);
  escreve(kGrade, {chave, caminho, titulo, comData(titulo, chave)});
}

void MontaDetalheOrcaHTML(qint32 id, const QString& caminho) {
  escreveModelo(kDetalhe, modeloDaEmpresa(),
                {QString::number(id), caminho, u"Detalhe Orçamento de Venda - "_s + numeroDocumento(id), {}});
}
