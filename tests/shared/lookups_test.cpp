#include "shared/lookups.h"

#include <functional>

#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "support/company.h"

using namespace Qt::StringLiterals;

namespace {

class Lookups : public support::Company {
 protected:
  Lookups() {
    support::fillBasics(databasePath());
    sql(u"INSERT INTO prop_cmrc (idprop_cmrc, data_prop_cmrc, data_fech, valo_dect, idcond_pgto, nume_pess) "
        "VALUES (301, '20240310 09:05', '20240401 10:00', '12.5', 41, '80 a 100'), "
        "(302, '20240311', null, null, null, null)"_s);
    sql(u"INSERT INTO pedi_veds (idpedi_veds, nume_pedi, idprop_cmrc, idclie, data_pedi, valo_dect) VALUES "
        "(401, 9001, 301, 5, '20240402', '7.25')"_s);
    sql(u"INSERT INTO empr_cnfg (nome_para, valo_para) VALUES ('COR_PADRAO', 'Areia'), ('VAZIO', null)"_s);
    static_cast<void>(statements());
  }
};

struct Member {
  const char* name;
  std::function<data::Asked<QString>(const QString&)> call;
  QString key, found;
};
#define MEMBER(function, key, found) \
  Member { #function, function, u##key##_s, u##found##_s }

const Member kMembers[] = {
    MEMBER(UsuarioAtual, "7", "MARIA"),
    MEMBER(MarcaProduto, "101", "9"),
    MEMBER(ClassFiscalProduto, "101", "31"),
    MEMBER(CodigoComTributacao, "31", "4819.10.00"),
    MEMBER(IdProdutoPorCodigo, " cx-100 ", "101"),
    MEMBER(DescricaoProdutoPorCodigo, "bom-1", "Bombom"),
    MEMBER(UnidadePrototipo, "202", "3"),
    MEMBER(ObservacaoPrototipo, "201", "Tampa com relevo"),
    MEMBER(IdColecao, "PRIMAVERA", "15"),
    MEMBER(CasasDecimaisUnidade, "KG", "3"),
    MEMBER(IdPessoaPorNome, "Papéis norte", "4"),
    MEMBER(FonesCliente, "5", "(19) 3333-1000 / (19) 3333-1002"),
    MEMBER(FoneContato, "21", "(19) 99999-0001"),
    MEMBER(EnderecoCliente, "5",
           "Clara Festas Ltda^Av. Brasil, 200^Campinas^SP^13020-000^220.100^22.333.444/0001-05^Centro^"),
    MEMBER(NomeVendedor, "5", "BIA"),
    MEMBER(NomeConhecidoVendedor, "5", "BIA"),
    MEMBER(NomeConhecidoTransportadora, "5", "Rápido Sul"),
    MEMBER(FoneTransportadoraPorId, "5", "(11) 4000-0001"),
    MEMBER(DescricaoCondPgto, "41", "30/60/90 dias"),
    MEMBER(DiasCondPgto, "41", "030/060/090/"),
    MEMBER(DescontoPedido, "9001", "7,25"),
    MEMBER(DataPedido, "9001", "02/04/2024"),
    MEMBER(DataFechamentoOrcamento, "301", "01/04/2024"),
    MEMBER(DescontoOrcamento, "000301", "12,5"),
    MEMBER(DataOrcamento, "301", "10/03/2024 09:05:00"),
    MEMBER(ParametroEmpresa, "COR_PADRAO", "Areia"),
};

// Each finds its row with one statement in upper case, and an empty or unknown key finds nothing.
TEST_F(Lookups, FindTheirRowAndNothingElse) {
  for (const Member& member : kMembers) {
    SCOPED_TRACE(member.name);
    EXPECT_EQ(waitFor(member.call(member.key)), member.found);
    const QStringList ran = statements();
    ASSERT_EQ(ran.size(), 1);
    EXPECT_EQ(ran[0], ran[0].toUpper());
    EXPECT_EQ(waitFor(member.call(u""_s)), u"");
    EXPECT_EQ(waitFor(member.call(u"999999"_s)), u"");
    EXPECT_EQ(waitFor(member.call(member.key)), member.found) << "nothing is kept from the call before";
    EXPECT_EQ(statements().size(), 3);
  }
}

TEST_F(Lookups, ACompanyThatWasDeactivatedIsNoCompany) {
  EXPECT_EQ(waitFor(EmailEmpresa()), u"vendas@aurora.example");
  sql(u"UPDATE empr SET data_desa = '20240101'"_s);
  EXPECT_EQ(waitFor(EmailEmpresa()), u"");
  EXPECT_EQ(waitFor(DadosEmpresaTexto()), u"");
}

TEST_F(Lookups, ContactsBelongToTheirCustomer) {
  EXPECT_EQ(waitFor(IdPessoaContato(u"dora"_s, u"Clara Festas Ltda"_s)), u"21");
  EXPECT_EQ(waitFor(IdClienteContato(u"DORA"_s, u"clara festas ltda"_s)), u"22");
  EXPECT_EQ(waitFor(IdPessoaContato(u"Dora"_s, u"Papéis Norte"_s)), u"");
  EXPECT_EQ(waitFor(IdClienteContato(u"Dora"_s, u"Papéis Norte"_s)), u"");
  EXPECT_EQ(waitFor(IdClienteContato(u""_s, u""_s)), u"");
}

TEST_F(Lookups, OpenQuotesAndPersons) {
  EXPECT_EQ(waitFor(DataFechamentoOrcamento(u"302"_s)), u"");
  EXPECT_EQ(waitFor(DescontoOrcamento(u"302"_s)), u"") << "null is no discount";
  EXPECT_EQ(waitFor(PessoasOrcamento(u"301"_s)), 80);
  EXPECT_EQ(waitFor(PessoasOrcamento(u"302"_s)), 0);
  EXPECT_EQ(waitFor(PessoasOrcamento(u"999"_s)), 0);
  sql(u"UPDATE prop_cmrc SET nume_pess = '40000' WHERE idprop_cmrc = 301"_s);
  EXPECT_EQ(waitFor(PessoasOrcamento(u"301"_s)), 40000);
  EXPECT_EQ(waitFor(ParametroEmpresa(u"VAZIO  "_s)), u"");
}

TEST_F(Lookups, PhonesAreWholeOrLeftOut) {
  sql(u"UPDATE pess SET tele_0002_pess = '(19) 98888-123456', fax0_0002_pess = '190' WHERE idpess = 2"_s);
  EXPECT_EQ(waitFor(FonesCliente(u"5"_s)), u"(19) 3333-1000 / (19) 98888-123456 / 190");
  sql(u"UPDATE pess SET nome_pess = 'A^B', ende_coml_pess = null WHERE idpess = 2"_s);
  EXPECT_TRUE(waitFor(EnderecoCliente(u"5"_s)).startsWith(u"A B^^Campinas^"_s))
      << "a ^ would shift the fields";
}

TEST_F(Lookups, UserNameGuardsItsQuery) {
  EXPECT_EQ(NomeUsuario(u"7"_s, u"antes"_s), u"MARIA");
  EXPECT_EQ(NomeUsuario(u"99"_s, u"antes"_s), u"");
  sql(u"ALTER TABLE usen RENAME TO outra"_s);
  EXPECT_EQ(NomeUsuario(u"7"_s, u"antes"_s), u"antes")
      << "an error that isn't the connection's is passed over";
  sql(u"ALTER TABLE outra RENAME TO usen"_s);
  EXPECT_EQ(NomeUsuario(u"7"_s, u"antes"_s), u"MARIA") << "and the connection goes on";
}

}  // namespace
