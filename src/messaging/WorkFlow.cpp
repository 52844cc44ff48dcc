#include "messaging/WorkFlow.h"

#include <algorithm>
#include <vector>

#include "platform/mail/mail_message.h"
#include "platform/values/numbers.h"
#include "shared/lookup_query.h"
#include "shared/lookups.h"
#include "shared/text.h"
#include "text/fields.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

/// Addresses of the subscribers with ", " between them; one without an address leaves its place empty. An
/// empty text when nobody has one.
QString enderecos(const QString& evento) {
  const QString usuarios = UsuariosEventoWorkFlow(evento);
  const int quantos = values::toInt32(leNumero(PegaCampo(usuarios, 1)));
  std::vector<Asked<QString>> pedidos;
  for (int campo = 2; campo <= quantos + 1; ++campo)
    pedidos.push_back(EmailUsuario(PegaCampo(usuarios, campo)));
  QStringList lista;
  for (auto& pedido : pedidos) lista << waitFor(pedido).toLower();
  const QString todos = lista.join(u", "_s);
  const bool ninguem = std::ranges::all_of(todos, [](QChar c) { return u" ,;"_s.contains(c); });
  return ninguem ? QString() : todos;
}

}  // namespace

Asked<QString> DescricaoEventoWorkFlow(const QString& evento) {
  return consulta::porTexto(
      {u"select desc_work_even from work_even where codi_work_even = ", u"desc_work_even"}, evento);
}

Asked<QString> TextoEventoWorkFlow(const QString& evento) {
  return consulta::porTexto(
      {u"select text_work_even from work_even where codi_work_even = ", u"text_work_even"}, evento);
}

Asked<QString> IdEventoWorkFlow(const QString& evento) {
  return consulta::porTexto({u"select idwork_even from work_even where codi_work_even = ", u"idwork_even"},
                            evento);
}

QString UsuariosEventoWorkFlow(const QString& evento) {
  const QString id = consulta::numero(waitFor(IdEventoWorkFlow(evento)));
  QString ids;
  data::Recordset rs = abreConsulta(u"select idusen from work_even_usen where idwork_even = "_s + id +
                                    u" and data_desa is null"_s);
  for (; !rs.eof(); rs.moveNext()) ids += rs.text(u"idusen") + u'^';
  return QString::number(rs.count()) + u'^' + ids;
}

void EnviaAvisoWorkFlow(forms::Form& /*tela*/, const QString& evento, const QString& tipo,
                        const QString& texto, bool textoNoAssunto, const QString& anexo) {
  if (tipo != u"EMAIL") return;
  const QString destinatarios = enderecos(evento);
  if (destinatarios.isEmpty()) return;
  auto pedeDescricao = DescricaoEventoWorkFlow(evento);
  auto pedeTexto = TextoEventoWorkFlow(evento);
  const QString assunto = waitFor(pedeDescricao) + u" "_s + (textoNoAssunto ? texto : QString());
  const QString mensagem = waitFor(pedeTexto) + u"\r "_s + texto;
  EnviaEmailWorkFlow(destinatarios, {}, assunto, mensagem, anexo);
}

bool temDestinatarioWorkFlow(const QString& evento) { return !enderecos(evento).isEmpty(); }

void EnviaEmailWorkFlow(const QString& destinatarios, const QString& copia, const QString& assunto,
                        const QString& mensagem, const QString& anexo) {
  auto pedeServidor = ServidorEmail();
  auto pedeRemetente = EmailEmpresa();
  auto pedeSenha = SenhaEmailEmpresa();
  const QString servidor = waitFor(pedeServidor).toLower();
  const QString remetente = waitFor(pedeRemetente).toLower();
  // Notices log in with the password in small letters, whatever its case in the company's data.
  const QString senha = waitFor(pedeSenha).toLower();
  if (servidor.isEmpty() && remetente.isEmpty() && senha.isEmpty()) return;

  mail::MailMessage email;
  email.Username = remetente;
  email.Password = senha;
  email.AuthenticationType = mail::kLogin;
  email.Server = servidor;
  email.MailFrom = remetente;
  email.SendTo = apara(destinatarios);
  if (const QString aparada = apara(copia); !aparada.isEmpty()) email.SendCC = aparada;
  email.MessageSubject = assunto;
  email.MessageText = mensagem;
  if (const QString aparado = apara(anexo); !aparado.isEmpty()) email.Attachments.Add(aparado);
  email.SendEmail();
}
