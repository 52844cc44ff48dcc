#pragma once

#include <algorithm>
#include <vector>

#include "documents/documents.h"
#include "run/context.h"

// The kinds of documents that the house prints, for pictures of them and for tests: the routine of each, and
// the company's parameters that choose it.
namespace papers {

using namespace Qt::StringLiterals;

struct Kind {
  QString name;
  void (*routine)(qint32, const QString&);
  QString model = {};       ///< MODELO_PROP_CMRC
  QString look = {};        ///< MODELO_PEDI_VEDS
  QString orderModel = {};  ///< MODELO_PEDIDO_VEDS
};

inline const std::vector<Kind> kKinds{{u"diario"_s, MontaOrcaGradeHTML},
                                      {u"modelo_vazio"_s, MontaOrcaHTML},
                                      {u"modelo_1"_s, MontaOrcaHTML, u"1"_s},
                                      {u"modelo_2"_s, MontaOrcaHTML, u"2"_s},
                                      {u"modelo_3"_s, MontaOrcaHTML, u"3"_s},
                                      {u"modelo_desconhecido"_s, MontaOrcaHTML, u"4"_s},
                                      {u"detalhe_vazio"_s, MontaDetalheOrcaHTML},
                                      {u"detalhe_1"_s, MontaDetalheOrcaHTML, u"1"_s},
                                      {u"pedido"_s, MontaPedidoHTML},
                                      {u"pedido_estilos"_s, MontaPedidoHTML, {}, u"1"_s, u"1"_s},
                                      {u"pedido_importados"_s, MontaPedidoHTML, {}, u"2"_s, u"2"_s},
                                      {u"cotacao"_s, CotacaoCompraHTML},
                                      {u"ordem"_s, OrdemCompraHTML}};

/// By its name, its parameters set in the company that is open.
inline const Kind& chosen(const QString& name) {
  const auto& kind = *std::ranges::find(kKinds, name, &Kind::name);
  for (const auto& [parameter, value] : {std::pair{u"MODELO_PROP_CMRC"_s, kind.model},
                                         {u"MODELO_PEDI_VEDS"_s, kind.look},
                                         {u"MODELO_PEDIDO_VEDS"_s, kind.orderModel}}) {
    contexto().Conexao.execute(u"DELETE FROM empr_cnfg WHERE nome_para = '%1'"_s.arg(parameter));
    contexto().Conexao.execute(
        u"INSERT INTO empr_cnfg (nome_para, valo_para) VALUES ('%1', '%2')"_s.arg(parameter, value));
  }
  return kind;
}

}  // namespace papers
