// Which blocks make up an order's document. Two parameters of the company decide: one the look, the other the
// items, conditions and signature.
#include <array>

#include "documents/document_names.h"
#include "documents/documents.h"
#include "documents/frame_blocks.h"
#include "documents/html_text.h"
#include "documents/order_blocks.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

struct Dados {
  QString numero, titulo, relatorio;
};
using Bloco = QString (*)(const Dados&);

const QString kComFotos = u"S"_s;
constexpr Bloco kNaoEscrito = nullptr;

enum Aspecto : std::size_t { EmLinha, Estilos };
using PorAspecto = std::array<Bloco, 2>;

constexpr std::array<PorAspecto, 5> kInicio{{
    {[](const Dados& d) { return AbreDocumentoHTML(d.titulo); },
     [](const Dados& d) { return AbreDocumentoHTMLEstilos(d.titulo); }},
    {[](const Dados&) { return CabecalhoEmpresaHTML(); }, [](const Dados&) { return CabecalhoLogoHTML(); }},
    {[](const Dados& d) { return NomeRelatorioHTML(d.relatorio, u"center"_s); },
     [](const Dados& d) { return NomeRelatorioEstilosHTML(d.relatorio); }},
    {[](const Dados& d) { return DadosClientePedidoHTML(d.numero); },
     [](const Dados& d) { return DadosClientePedidoEstilosHTML(d.numero); }},
    {[](const Dados& d) { return DadosGeraisPedidoHTML(d.numero); },
     [](const Dados& d) { return DadosGeraisPedidoEstilosHTML(d.numero); }},
}};

enum Modelo : std::size_t { Caixas, Importados, Outro };

// Items by model and look.
constexpr std::array<PorAspecto, 3> kItens{{
    {[](const Dados& d) { return ItensPedidoHTML(d.numero, kComFotos); },
     [](const Dados& d) { return ItensPedidoEstilosHTML(d.numero, kComFotos); }},
    {[](const Dados& d) { return ItensPedidoFotoHTML(d.numero, kComFotos); },
     [](const Dados& d) { return ItensPedidoFotoHTML(d.numero, kComFotos); }},
    {kNaoEscrito, kNaoEscrito},
}};

constexpr Bloco kCondicoes = [](const Dados& d) { return RodapePedidoHTML(d.numero); };
constexpr Bloco kFecha = [](const Dados&) { return FechaDocumentoHTML(); };

constexpr std::array<Bloco, 3> kAssinatura{
    [](const Dados&) { return NomeRelatorioHTML(u"De Acordo"_s, u"left"_s); },
    [](const Dados&) { return AssinaturaHTML(); },
    kNaoEscrito,
};

Modelo modeloDe(const QString& parametro) {
  if (parametro.isEmpty() || parametro == u"1") return Caixas;
  return parametro == u"2" ? Importados : Outro;
}

}  // namespace

void MontaPedidoHTML(qint32 id, const QString& caminho) {
  const Aspecto aspecto = waitFor(ParametroEmpresa(u"MODELO_PEDI_VEDS"_s)) == u"2" ? Estilos : EmLinha;
  const Modelo modelo = modeloDe(waitFor(ParametroEmpresa(u"MODELO_PEDIDO_VEDS"_s)));
  const QString numero = QString::number(id);
  const QString titulo = u"Pedido de Venda - "_s + numeroDocumento(id);
  const Dados dados{numero, titulo, titulo + u" - "_s + diaDaData(waitFor(DataPedido(numero)))};

  html::Iniciado arquivo(caminho);
  const auto escreve = [&](Bloco bloco) {
    if (bloco != kNaoEscrito) html::acrescenta(arquivo.parte(), bloco(dados));
  };
  for (const PorAspecto& passo : kInicio) escreve(passo[aspecto]);
  for (const Bloco bloco : {kItens[modelo][aspecto], kCondicoes, kAssinatura[modelo], kFecha}) escreve(bloco);
  arquivo.pronto();
}
