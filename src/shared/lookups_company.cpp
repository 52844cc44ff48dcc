#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/values/runtime_error.h"
#include "run/context.h"
#include "run/findings.h"
#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;
using consulta::porNumero;
using consulta::porTexto;
using consulta::semChave;

// Users, the company and its parameters, the lists of choices.

QString NomeUsuario(const QString& idusen, const QString& atual) {
  try {
    return waitFor(UsuarioAtual(idusen));
  } catch (const values::RuntimeError& erro) {
    forms::reportRuntimeError(erro, u"NomeUsuario"_s);
    if (erro.number() == values::kConnectionFailed) {
      registraAchados();
      const QString banco = u"("_s + contexto().TipoBanco + u")"_s;
      forms::msgBox({.text = u"Ocorreu uma Falha de Conexão com o Servidor de Banco de Dados "_s + banco +
                             u".\rTente Novamente, Caso o Problema Persista, Contate o Desenvolvedor!"_s,
                     .title = u"Falha de Conexão "_s + banco,
                     .icon = forms::Icon::Critical});
      FechaConexao(u"SAIR"_s);
    }
    return atual;
  }
}

Asked<QString> UsuarioAtual(const QString& idusen) {
  return porNumero({u"SELECT * FROM USEN WHERE IDUSEN=", u"usen"}, idusen);
}

Asked<QString> IdUsuario(const QString& usen) {
  return porTexto({u"select idusen from usen where usen=", u"IDUSEN"}, usen);
}

Asked<QString> EmailUsuario(const QString& idusen) {
  return porNumero({u"select emai_user from usen where idusen=", u"emai_user"}, idusen);
}

Asked<QString> ParametroEmpresa(const QString& nome) {
  return semChave(
      {u"select * from empr_cnfg where nome_para='"_s + aparaDireita(nome) + u"'"_s, u"valo_para"});
}

Asked<QString> ServidorEmail() { return semChave({u"SELECT EMAI_SERV FROM EMPR", u"EMAI_SERV"}); }

namespace {

const QString kEmpresa = u"SELECT * FROM empr where data_desa is null"_s;

}  // namespace

Asked<QString> NomeConhecidoEmpresa() { return semChave({kEmpresa, u"NOME_CONH_EMPR"}); }

Asked<QString> EmailEmpresa() { return semChave({kEmpresa, u"emai_empr"}); }

Asked<QString> SenhaEmailEmpresa() { return semChave({kEmpresa, u"EMAI_EMPR_SENH"}); }

Asked<QString> EmailOrcamento() { return semChave({kEmpresa, u"emai_orca"}); }

Asked<QString> SenhaEmailOrcamento() { return semChave({kEmpresa, u"SENH_EMAI_ORCA"}); }

Asked<QString> DadosEmpresaTexto() {
  static const QStringList kColunas{u"nome_empr"_s,      u"cnpj_empr"_s,      u"ie00_empr"_s,
                                    u"ende_coml_empr"_s, u"cida_coml_empr"_s, u"uf00_coml_empr"_s,
                                    u"cep0_coml_empr"_s, u"tele_0001_empr"_s, u"tele_0002_empr"_s,
                                    u"emai_empr"_s,      u"http_empr"_s};
  const data::Recordset rs = co_await pedeConsulta(kEmpresa, data::Rows::First);
  co_return consulta::emCampos(rs, kColunas);
}

Asked<QString> IdLocalVenda(const QString& descricao) {
  return porTexto({u"select idloca_veds from loca_veds where desc_loca_veds=", u"idloca_veds"}, descricao);
}

Asked<QString> DescricaoLocalVenda(const QString& id) {
  return porTexto({u"select desc_loca_veds from loca_veds where idloca_veds=", u"desc_loca_veds"}, id);
}

Asked<QString> IdTipoMarketing(const QString& descricao) {
  return porTexto({u"select idtipo_mktg from tipo_mktg where desc_tipo_mktg=", u"idtipo_mktg"}, descricao);
}

Asked<QString> DescricaoTipoMarketing(const QString& id) {
  return porTexto({u"select desc_tipo_mktg from tipo_mktg where idtipo_mktg=", u"desc_tipo_mktg"}, id);
}

Asked<QString> IdTipoEvento(const QString& descricao) {
  return porTexto({u"select idtipo_even from tipo_even where desc_tipo_even=", u"idtipo_even"}, descricao);
}

Asked<QString> DescricaoTipoEvento(const QString& id) {
  return porTexto({u"select desc_tipo_even from tipo_even where idtipo_even=", u"desc_tipo_even"}, id);
}

Asked<QString> IdTipoServico(const QString& descricao) {
  return porTexto({u"select idtipo_serv from tipo_serv where desc_tipo_serv=", u"idtipo_serv"}, descricao);
}

Asked<QString> DescricaoTipoServico(const QString& id) {
  return porTexto({u"select desc_tipo_serv from tipo_serv where idtipo_serv=", u"desc_tipo_serv"}, id);
}
