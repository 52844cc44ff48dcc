#include "platform/mail/smtp_dialogue.h"

#include <array>

using namespace Qt::StringLiterals;

namespace mail {

namespace {

struct Step {
  const char* command;
  const char16_t* failure;
};
/// What it means for the user when the server turns a command down. "%1" is the command's address.
constexpr std::array<Step, 7> kSteps{{
    {"EHLO", u"o servidor recusou a conexão"},
    {"HELO", u"o servidor recusou a conexão"},
    {"STARTTLS", u"o servidor não iniciou a conexão segura"},
    {"AUTH", u"o servidor recusou o usuário ou a senha"},
    {"MAIL FROM", u"o servidor recusou o remetente %1"},
    {"RCPT TO", u"o servidor recusou o destinatário %1"},
    {"DATA", u"o servidor recusou a mensagem"},
}};

struct Fault {
  CURLcode code;
  const char16_t* failure;
};
/// Faults of the line, which have words of their own whatever the step.
constexpr std::array<Fault, 10> kFaults{{
    {CURLE_COULDNT_RESOLVE_HOST, u"o servidor de e-mail não foi encontrado"},
    {CURLE_COULDNT_CONNECT, u"não foi possível conectar ao servidor de e-mail"},
    {CURLE_PEER_FAILED_VERIFICATION, u"o certificado do servidor de e-mail não é de confiança"},
    {CURLE_SSL_CACERT_BADFILE, u"o arquivo de certificados de confiança não pôde ser lido"},
    {CURLE_SSL_CONNECT_ERROR, u"a conexão segura com o servidor de e-mail falhou"},
    {CURLE_LOGIN_DENIED, u"o servidor recusou o usuário ou a senha"},
    {CURLE_OPERATION_TIMEDOUT, u"o servidor de e-mail não respondeu a tempo"},
    {CURLE_RECV_ERROR, u"a conexão com o servidor de e-mail caiu"},
    {CURLE_SEND_ERROR, u"a conexão com o servidor de e-mail caiu"},
    {CURLE_GOT_NOTHING, u"a conexão com o servidor de e-mail caiu"},
}};

/// A part of a login can begin with the letters of a command, but is one word.
bool isCommand(const QByteArray& line, const QByteArray& command) {
  const QByteArray rest = line.mid(command.size());
  return line.startsWith(command) && (rest.isEmpty() || !QChar::isLetterOrNumber(uchar(rest[0])));
}

/// What stands between "<" and ">" of a command.
QString addressIn(const QByteArray& command) {
  const qsizetype open = command.indexOf('<');
  return QString::fromUtf8(command.mid(open + 1, command.indexOf('>', open) - open - 1));
}

}  // namespace

void Dialogue::listenTo(CURL* handle) {
  curl_easy_setopt(handle, CURLOPT_VERBOSE, 1L);
  curl_easy_setopt(handle, CURLOPT_DEBUGFUNCTION, &Dialogue::listen);
  curl_easy_setopt(handle, CURLOPT_DEBUGDATA, this);
}

int Dialogue::listen(CURL* /*handle*/, curl_infotype type, char* data, size_t size, void* self) {
  auto* dialogue = static_cast<Dialogue*>(self);
  if (dialogue->leaving_) return 0;
  const QByteArray bytes(data, static_cast<qsizetype>(size));
  if (type == CURLINFO_HEADER_OUT) dialogue->said(bytes);
  if (type == CURLINFO_HEADER_IN) dialogue->answer_ += bytes;
  if (type == CURLINFO_DATA_OUT) dialogue->answer_.clear();
  return 0;
}

void Dialogue::said(const QByteArray& command) {
  leaving_ = command.startsWith("QUIT");
  if (leaving_) return;
  answer_.clear();
  // A line that is no command goes on with the one before it: the parts of a login.
  for (const Step& step : kSteps) {
    if (isCommand(command, step.command)) {
      step_ = QString::fromUtf16(step.failure);
      if (step_.contains(u"%1")) step_ = step_.arg(addressIn(command));
    }
  }
}

bool Dialogue::refused() const { return answer_.startsWith('4') || answer_.startsWith('5'); }

QString Dialogue::failure(CURLcode result) const {
  if (refused() && !step_.isEmpty()) return step_;
  for (const Fault& fault : kFaults)
    if (fault.code == result) return QString::fromUtf16(fault.failure);
  return u"o servidor recusou a conexão"_s;
}

QStringList Dialogue::details(const QString& server) const {
  const QString answer = QString::fromUtf8(answer_).trimmed().replace(u"\r\n"_s, u"\r"_s);
  return {u"Servidor: "_s + server, u"Resposta: "_s + (answer.isEmpty() ? u"nenhuma"_s : answer)};
}

}  // namespace mail
