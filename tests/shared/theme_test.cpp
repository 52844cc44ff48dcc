#include "shared/theme.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "hands/hands.h"
#include "platform/forms/combo.h"
#include "run/context.h"
#include "shared/lists.h"
#include "support/company.h"

using namespace Qt::StringLiterals;

namespace {

class Theme : public support::Company {
 protected:
  Theme() { support::fillBasics(databasePath()); }

  forms::Form form;
};

TEST_F(Theme, ThemeGoesByKindOfControl) {
  contexto().CorFundo = u"1"_s;
  aplicaTemaPadrao(form);
  EXPECT_EQ(forms::toColor(hands::colourOf(&form, forms::kBackColor)), forms::toColor(0x8000000F))
      << "the system's, without a row";
  sql(u"INSERT INTO cor_sist VALUES ('Areia', '14741230', '128', '1', '2')"_s);
  sql(u"INSERT INTO empr_cnfg VALUES ('COR_PADRAO', ' areia ')"_s);
  auto* combo = new forms::Combo(&form);
  const struct {
    const QWidget* control;
    bool ground, text;
  } kinds[] = {{new QGroupBox(&form), true, true},
               {new QLabel(&form), true, true},
               {new QPushButton(&form), true, false},
               {new QLineEdit(&form), true, false},
               {new QPlainTextEdit(&form), true, false},
               {new QRadioButton(&form), true, false},
               {new QCheckBox(&form), true, false},
               {new forms::FlexGrid(&form), false, false},
               {new forms::MaskedBox(&form), false, false},
               {combo, false, false},
               {combo->lineEdit(), false, false}};
  aplicaTemaPadrao(form);
  EXPECT_EQ(contexto().CorFundo2, u"1");
  EXPECT_EQ(contexto().CorFrente2, u"2");
  EXPECT_EQ(hands::colourOf(&form, forms::kBackColor), 14741230);
  for (const auto& [control, ground, text] : kinds) {
    SCOPED_TRACE(control->metaObject()->className());
    EXPECT_EQ(hands::colourOf(control, forms::kBackColor) == 14741230, ground);
    EXPECT_EQ(hands::colourOf(control, forms::kForeColor) == 128, text);
  }
}

// Every filler: its combo, what it lists, what it leaves out.
TEST_F(Theme, Lists) {
  sql(u"INSERT INTO pess (idpess, nome_pess, nome_conh, cpf0_cnpj) VALUES (50, 'Ávila Doces', 'ABEL', "
      "'123'), (51, 'Zeca Buffet', 'ZECA', '9'), (52, 'Antiga', 'VELHA', '1')"_s);
  for (const auto& role : {u"vend"_s, u"trpt"_s, u"clie"_s})
    sql(u"INSERT INTO %1 (id%1, idpess, data_desa) VALUES (50, 50, null), (52, 52, '20240101')"_s.arg(role));
  sql(u"INSERT INTO pess_cont (idpess_cont, idpess, nome_pess_cont) VALUES (50, 2, 'Aline'), (51, 50, 'Zoé')"_s);
  for (const auto& table : {u"tipo_mktg"_s, u"loca_veds"_s, u"tipo_even"_s, u"tipo_serv"_s, u"cole"_s})
    sql(u"INSERT INTO %1 (id%1, desc_%1, data_desa) VALUES (90, 'Ativo', null), (91, 'Velho', '20240101')"_s
            .arg(table));
  sql(u"INSERT INTO usen (idusen, usen, data_desa) VALUES (90, 'SAIU', '20240101')"_s);
  const QString clara = u"Clara Festas Ltda"_s;
  const struct {
    QString combo;
    std::function<void()> fill;
    QString list;
  } cases[] = {
      {u"cboVendedor"_s, [&] { CarregaVendedores(form, u""_s); }, u"ABEL;BIA"_s},
      {u"cboVendedor"_s, [&] { CarregaVendedores(form, u"b"_s); }, u"BIA"_s},
      {u"cboTransportadora"_s, [&] { CarregaTransportadoras(form, u""_s); }, u"ABEL;Rápido Sul"_s},
      {u"cboTipoMktg"_s, [&] { CarregaTiposMarketing(form); }, u"Ativo;Indicação"_s},
      {u"cboLocalVenda"_s, [&] { CarregaLocaisVenda(form); }, u"Ativo;Loja Centro"_s},
      {u"cboTipoEven"_s, [&] { CarregaTiposEvento(form); }, u"Ativo;Casamento"_s},
      {u"cboTipoServ"_s, [&] { CarregaTiposServico(form); }, u"Ativo;Lembrança"_s},
      {u"cboCole"_s, [&] { CarregaColecoes(form); }, u"Ativo;Primavera"_s},
      {u"cboRespAtendimento"_s, [&] { CarregaUsuarios(form); }, u"MARIA;JOAO"_s},
      {u"cboCliente"_s, [&] { CarregaClientes(form, u""_s); }, u"Ávila Doces;Clara Festas Ltda"_s},
      {u"cboCliente"_s, [&] { CarregaClientes(form, u"a%d"_s); }, u"Ávila Doces;Clara Festas Ltda"_s},
      {u"cboCliente"_s, [&] { CarregaClientes(form, u"123"_s, FiltroCliente::Documento); }, u"Ávila Doces"_s},
      {u"cboClienteContato"_s, [&] { CarregaContatos(form, clara, u""_s); }, u"Aline;Dora"_s},
      {u"cboClienteContato"_s, [&] { CarregaContatos(form, clara, u"or"_s); }, u"Dora"_s},
  };
  forms::Combo combo(&form);
  for (const auto& one : cases) {
    combo.setObjectName(one.combo);
    combo.setText(u"digitado"_s);
    one.fill();
    QStringList entries;
    for (int i = 0; i < combo.count(); ++i) entries << combo.itemText(i);
    EXPECT_EQ(entries.join(u';'), one.list) << one.combo.toStdString();
    EXPECT_EQ(combo.text(), u"digitado") << "filling the list keeps what was typed";
  }
}

}  // namespace
