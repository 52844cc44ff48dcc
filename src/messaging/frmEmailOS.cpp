#include "messaging/frmEmailOS.h"

#include <QFileInfo>
#include <QLocale>

#include "documents/document_names.h"
#include "documents/document_values.h"
#include "platform/files/contents.h"
#include "platform/files/paths.h"
#include "platform/forms/boxes.h"
#include "platform/forms/process.h"
#include "platform/mail/mail_message.h"
#include "platform/values/numbers.h"
#include "run/context.h"
#include "run/program_title.h"
#include "shared/lookups.h"
#include "shared/messages.h"
#include "shared/text.h"
#include "shared/theme.h"
#include "text/fields.h"
#include "text/trim.h"

using namespace Qt::StringLiterals;

namespace {

const QString kSemSenha =
    u"Usuário sem senha de e-mail registrada!\r"
    u"\r"
    u"Você deverá entrar em [Manutenção] e depois em [Senha e-mail] para registrar!\r"
    u"\r"
    u"O e-mail não pode ser encaminhado!"_s;

constexpr qint64 kGrande = qint64{1024} * 1024;  // a size from here on is shown in megabytes

bool vazio(const QLineEdit* caixa) { return apara(caixa->text()).isEmpty(); }

/// Recipients without the comma that a missing last one leaves.
QString semVirgulaFinal(const QString& destinatarios) {
  QString lista = apara(destinatarios);
  if (lista.endsWith(u',')) lista.chop(1);
  return apara(lista);
}

/// A file by its name and size, "orca_cliente_000013.html (42 KB)".
QString nomeETamanho(const QString& caminho) {
  if (!files::exists(caminho)) return u"arquivo não encontrado"_s;
  const QFileInfo arquivo(files::resolve(caminho));
  return u"%1 (%2)"_s.arg(arquivo.fileName(),
                          QLocale().formattedDataSize(arquivo.size(), arquivo.size() < kGrande ? 0 : 1,
                                                      QLocale::DataSizeTraditionalFormat));
}

/// The user's list of files: count, then each path.
void anexaLista(mail::AttachmentList& anexos, const QString& lista) {
  const int quantos = values::toInt32(leNumero(PegaCampo(lista, 1)));
  for (int campo = 2; campo <= quantos + 1; ++campo) anexos.Add(PegaCampo(lista, campo));
}

}  // namespace

frmEmailOS::frmEmailOS() {
  setupUi(this);
  fitToText();
  on(txtPara, forms::Event::LostFocus, &frmEmailOS::txtPara_LostFocus);
  on(txtAnexo, forms::Event::LostFocus, &frmEmailOS::txtAnexo_LostFocus);
  on(txtMsg, forms::Event::LostFocus, &frmEmailOS::mostraConteudo);
  on(cmdAnexo, forms::Event::Click, &frmEmailOS::cmdAnexo_Click);
  on(cmdEnviarEmail, forms::Event::Click, &frmEmailOS::cmdEnviarEmail_Click);
  enterMovesOn({txtPara, txtCC, txtTitulo, txtMsg, txtPassword});
  selectOnFocus({txtPara, txtCC, txtTitulo, txtMsg, txtPassword});
}

/// What follows the size of the text: an address fits its box.
void frmEmailOS::fitToText() {
  constexpr int kLetras = 22;
  for (QLineEdit* caixa : {txtMailFrom, txtUsername, txtServer, txtPassword})
    caixa->setMinimumWidth(kLetras * fontMetrics().averageCharWidth());
}

void frmEmailOS::Form_Load() {
  AplicaCoresForm(*this);
  CentralizaForm(*this);
  setWindowTitle(kTitulo + u" - Envio de E-mail"_s);
  txtServer->setText(waitFor(ServidorEmail()).toLower());
  txtMailFrom->setText(waitFor(EmailOrcamento()).toLower());
  txtUsername->setText(txtMailFrom->text());
  txtPassword->setText(waitFor(SenhaEmailOrcamento()));

  ValoresDoDocumento& valores = documento();
  QString& destinatarios = valores.DestinatariosEmail;
  destinatarios = semVirgulaFinal(destinatarios);
  // The user always gets a copy, as one of the recipients.
  const QString usuario = waitFor(EmailUsuario(QString::number(contexto().IdUsuarioAtual))).toLower();
  QString para = destinatarios + u", "_s + usuario;
  if (para.startsWith(u',')) para.remove(0, 2);
  txtPara->setText(para);

  const qint32 deles = valores.orcamentoDosDestinatarios;
  const qint32 mostrado = valores.IdDocumento;
  lblDestinatarios->setVisible(!destinatarios.isEmpty() && deles != 0 && deles != mostrado);
  lblDestinatarios->setText(u"Destinatários do orçamento %1; documento do %2."_s.arg(
      numeroDocumento(deles), numeroDocumento(mostrado)));

  if (valores.MensagemTravadaEmail) txtMsg->setEnabled(false);
  txtMsg->setPlainText(valores.MensagemPadraoEmail);
  mostraConteudo();
}

void frmEmailOS::poeAnexo(const QString& caminho) {
  txtAnexo->setText(caminho);
  mostraConteudo();
}

/// What will go, before it goes: a text of the user's own takes the place of the document.
void frmEmailOS::mostraConteudo() {
  const bool doUsuario = !apara(txtMsg->toPlainText()).isEmpty();
  lblCorpo->setText(u"Corpo: "_s +
                    (doUsuario ? u"o texto de Msg"_s : nomeETamanho(documento().ArquivoCorpoEmail)));
  lblAnexo->setVisible(!vazio(txtAnexo));
  lblAnexo->setText(u"Anexo: "_s + nomeETamanho(apara(txtAnexo->text())));
}

void frmEmailOS::txtPara_LostFocus() { txtPara->setText(PontoVirgulaParaVirgula(txtPara->text())); }

/// A click on the button beside it doesn't leave the box.
void frmEmailOS::txtAnexo_LostFocus() {
  mostraConteudo();
  const QString caminho = apara(txtAnexo->text());
  if (caminho.isEmpty() || files::exists(caminho)) return;
  avisa(u"O arquivo do anexo não foi encontrado:\r"_s + caminho);
}

void frmEmailOS::cmdAnexo_Click() {
  const QString escolhido = forms::fileBox(u"Anexo"_s, files::resolve(contexto().PathDocs));
  if (!escolhido.isEmpty()) poeAnexo(escolhido);
}

bool frmEmailOS::podeEnviar() {
  if (txtPassword->text().isEmpty()) {
    forms::msgBox({.text = kSemSenha, .title = windowTitle()});
    return false;
  }
  const struct {
    QLineEdit* caixa;
    QString recusa;
    QWidget* foco;
  } exigidos[] = {
      {txtPara, u"O campo [Para] precisa ser informado!"_s, txtPara},
      {txtServer, u"Falta Configuração do Servidor de E-mail..."_s, nullptr},
      {txtMailFrom, u"Falta Configuração do E-Mail do Usuário Remetente..."_s, nullptr},
      {txtPassword, u"O campo [Senha] precisa ser informado!"_s, txtPassword},
  };
  for (const auto& [caixa, recusa, foco] : exigidos) {
    if (!vazio(caixa)) continue;
    avisa(recusa);
    if (foco != nullptr) focus(foco);
    return false;
  }
  return true;
}

void frmEmailOS::cmdEnviarEmail_Click() {
  if (!podeEnviar() || !envia()) return;
  avisa(u"Mensagem Enviada!"_s);
  unload();
}

/// Whether it went. An error of the mail component stops the click; what was typed stays, to be mended and
/// sent again.
bool frmEmailOS::envia() {
  forms::WaitPointer espera;
  try {
    enviaMensagem();
    return true;
  } catch (const mail::MailError& erro) {
    forms::showRuntimeError(erro);
    espera.stay();
    return false;
  }
}

void frmEmailOS::enviaMensagem() {
  ValoresDoDocumento& valores = documento();
  mail::MailMessage email;
  email.Username = txtUsername->text();
  email.Password = txtPassword->text();
  email.AuthenticationType = mail::kLogin;
  if (!vazio(txtAnexo)) email.Attachments.Add(apara(txtAnexo->text()));
  anexaLista(email.Attachments, valores.AnexosEmail);
  email.Server = txtServer->text();
  email.MailFrom = txtMailFrom->text();
  email.SendTo = apara(txtPara->text());
  email.SendCC = apara(txtCC->text());
  email.MessageSubject = txtTitulo->text();

  const QString mensagem = forms::controlText(txtMsg);
  if (!valores.MensagemHTMLEmail.isEmpty()) {
    email.MessageHTML = valores.MensagemHTMLEmail;
  } else if (apara(mensagem).isEmpty()) {
    email.MessageHTML = files::readLines(valores.ArquivoCorpoEmail).join(QString());
  } else {
    // A text of the user's own goes in place of the document.
    email.MessageText = aparaDireita(mensagem);
  }
  valores.MensagemHTMLEmail.clear();
  txtStatus->clear();
  email.SendEmail();
}
