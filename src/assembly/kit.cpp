#include "assembly/kit.h"

#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

void CarregaKit(forms::GridModel& grade, const QString& codigo) {
  enum Coluna { Id, Codigo };
  if (codigo.isEmpty()) return;
  const QString sql =
      u"select * from prod_kit0 where idprod = "_s + IdProdutoPorCodigo(codigo) + u" and data_desa is null"_s;
  for (auto rs = AbreConsulta(sql); !rs.eof(); rs.moveNext()) {
    const QString id = rs.text(u"idprod_kit0");
    const QString unidade = DescricaoUnidade(UnidadeProduto(id));
    forms::RowBuilder linha;
    linha << id << CodigoProduto(id) << DescricaoProduto(id) << unidade
          << rs.format(u"QTDE_PROD", MascaraDecimais(CasasDecimaisUnidade(unidade)));
    grade.addItem(linha.text());
  }
  grade.sortAscending(Codigo);
  if (grade.rows() > 2) grade.setRow(0);
}
