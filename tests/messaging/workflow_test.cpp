#include "messaging/WorkFlow.h"

#include "mailing_case.h"
#include "platform/files/contents.h"
#include "platform/mail/mail_message.h"

using namespace Qt::StringLiterals;
using support::SmtpServer;

namespace {

class Notices : public Mailing {
 protected:
  Notices() {
    sql(u"insert into usen (idusen, usen, emai_user) values (9, 'ANA', null)"_s);
    sql(u"insert into work_even values (51, 'AVISOORCAFECHADO', 'Orçamento fechado', 'Produção: iniciar.')"_s);
    sql(u"insert into work_even values (52, 'PROJETACOMPRA', 'Compras', null)"_s);
    for (const auto& row : {u"51, 7, null"_s, u"51, 9, null"_s, u"51, 8, null"_s, u"52, 8, '20240101'"_s})
      sql(u"insert into work_even_usen (idwork_even, idusen, data_desa) values (%1)"_s.arg(row));
  }

  void notice(const QString& event, const QString& kind = u"EMAIL"_s, bool inSubject = true,
              const QString& attachment = {}) {
    EnviaAvisoWorkFlow(caller_, event, kind, u"Orçamento Nr.:000123 Aprovado!"_s, inSubject, attachment);
  }

  forms::Form caller_;
};

}  // namespace

TEST_F(Notices, GoToTheSubscribersFromTheCompanysAddress) {
  // The server takes the password in small letters only, as the program sends it.
  const SmtpServer server({u"--login"_s, u"vendas@aurora.example:senha-empresa"_s});
  mailTo(server);
  sql(u"update empr set emai_empr = 'Vendas@Aurora.example', emai_empr_senh = 'Senha-EMPRESA'"_s);
  const QString detail = contexto().PathDocs + u"deta_orca_000123.html"_s;
  files::write(detail, "<html>detalhe</html>");

  notice(u"AVISOORCAFECHADO"_s, u"EMAIL"_s, true, detail);
  notice(u"AVISOORCAFECHADO"_s, u"EMAIL"_s, false);
  ASSERT_EQ(server.messages().size(), 2);
  const QJsonObject full = server.messages()[0];
  EXPECT_EQ(full[u"from"_s].toString(), u"vendas@aurora.example"_s);
  // A subscriber without an address has its place in the list, and gets nothing.
  EXPECT_EQ(full[u"recipients"_s].toArray(),
            (QJsonArray{u"maria@aurora.example"_s, u"joao@aurora.example"_s}));
  EXPECT_FALSE(full[u"headers"_s].toObject().contains(u"cc"_s));
  const QString text = u"text/plain: Produção: iniciar.\n Orçamento Nr.:000123 Aprovado!"_s;
  EXPECT_EQ(full[u"summary"_s].toString(), u"Orçamento fechado Orçamento Nr.:000123 Aprovado! | "_s + text +
                                               u" | text/html: deta_orca_000123.html"_s);
  EXPECT_EQ(server.messages()[1][u"summary"_s].toString(), u"Orçamento fechado | "_s + text);
}

TEST_F(Notices, NothingGoesWithoutSubscribersKindSenderOrFile) {
  const SmtpServer server;
  mailTo(server);
  for (const QString& event : {u"PROJETACOMPRA"_s, u"NADA"_s}) {
    EXPECT_EQ(UsuariosEventoWorkFlow(event), u"0^"_s);
    notice(event);
  }
  notice(u"AVISOORCAFECHADO"_s, u"SMS"_s);
  EXPECT_THROW(notice(u"AVISOORCAFECHADO"_s, u"EMAIL"_s, true, u"/tmp/gone.html"_s), mail::MailError);
  sql(u"update work_even_usen set data_desa = '20240101' where idusen <> 9"_s);
  notice(u"AVISOORCAFECHADO"_s);  // nobody left has an address
  sql(u"update work_even_usen set data_desa = null"_s);
  sql(u"update empr set emai_serv = '', emai_empr = null, emai_empr_senh = ''"_s);
  notice(u"AVISOORCAFECHADO"_s);
  EXPECT_TRUE(server.messages().isEmpty());
  // With any of them the message is tried, and what is missing is said.
  sql(u"update empr set emai_empr_senh = 'x'"_s);
  EXPECT_THROW(notice(u"AVISOORCAFECHADO"_s), mail::MailError);
}
