#include "messaging/WorkFlow.h"

#include "platform/mail/mail_message.h"
#include "platform/values/numbers.h"
#include "run/configuration.h"
#include "run/context.h"
#include "shared/lookups.h"
#include "shared/text.h"

using namespace Qt::StringLiterals;

namespace {

/// One column of an event by its code.
QString campoDoEvento(const QString& coluna, const QString& evento) {
  QString& sql = contexto().sqlFuncoes;
  sql = u"select "_s + coluna + u" from work_even where codi_work_even = '"_s + evento + u"'"_s;
  const data::Recordset rs = AbreConsulta(sql);
  return rs.eof() ? QString() : rs.text(coluna);
}

/// Addresses of the subscribers with ", " between them; one without an address leaves its place empty.
QString enderecos(const QString& usuarios, int quantos) {
  QString lista;
  for (int campo = 2; campo <= quantos + 1; ++campo)
    lista += EmailUsuario(PegaCampo(usuarios, campo)).toLower() + u", "_s;
  lista.chop(2);
  return lista;
}

}  // namespace

QString DescricaoEventoWorkFlow(const QString& evento) { return campoDoEvento(u"desc_work_even"_s, evento); }
QString TextoEventoWorkFlow(const QString& evento) { return campoDoEvento(u"text_work_even"_s, evento); }
QString IdEventoWorkFlow(const QString& evento) { return campoDoEvento(u"idwork_even"_s, evento); }

QString UsuariosEventoWorkFlow(const QString& evento) {
  const QString id = values::toText(LeNumero(IdEventoWorkFlow(evento)));
  QString& sql = contexto().sqlFuncoes;
  sql = u"select idusen from work_even_usen where idwork_even = "_s + id + u" and data_desa is null"_s;
  QString ids;
  data::Recordset rs = AbreConsulta(sql);
  for (; !rs.eof(); rs.moveNext()) ids += rs.text(u"idusen") + u'^';
  return QString::number(rs.count()) + u'^' + ids;
}

void EnviaAvisoWorkFlow(forms::Form& /*tela*/, const QString& evento, const QString& tipo,
                        const QString& texto, bool textoNoAssunto, const QString& anexo) {
  if (tipo != u"EMAIL") return;
  const QString usuarios = UsuariosEventoWorkFlow(evento);
  const int quantos = values::toInt32(LeNumero(PegaCampo(usuarios, 1)));
  if (quantos <= 0) return;
  const QString destinatarios = enderecos(usuarios, quantos);
  const QString assunto = DescricaoEventoWorkFlow(evento) + u" "_s + (textoNoAssunto ? texto : QString());
  const QString mensagem = TextoEventoWorkFlow(evento) + u"\r "_s + texto;
  EnviaEmailWorkFlow(destinatarios, {}, assunto, mensagem, anexo);
}

void EnviaEmailWorkFlow(const QString& destinatarios, const QString& copia, const QString& assunto,
                        const QString& mensagem, const QString& anexo) {
  const QString servidor = ServidorEmail().toLower();
  const QString remetente = EmailEmpresa().toLower();
  const QString usuario = EmailEmpresa().toLower();
  // Notices log in with the password in small letters, whatever its case in the company's data.
  const QString senha = SenhaEmailEmpresa().toLower();
  if (servidor.isEmpty() && remetente.isEmpty() && usuario.isEmpty() && senha.isEmpty()) return;

  mail::MailMessage email;
  email.Username = usuario;
  email.Password = senha;
  email.AuthenticationType = mail::kLogin;
  email.Server = servidor;
  email.MailFrom = remetente;
  email.SendTo = Apara(destinatarios);
  if (const QString aparada = Apara(copia); !aparada.isEmpty()) email.SendCC = aparada;
  email.MessageSubject = assunto;
  email.MessageText = mensagem;
  if (const QString aparado = Apara(anexo); !aparado.isEmpty()) email.Attachments.Add(aparado);
  email.SendEmail();
}
