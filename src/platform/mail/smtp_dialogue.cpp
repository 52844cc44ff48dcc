#include "platform/mail/smtp_dialogue.h"

#include <QRegularExpression>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace mail {

namespace {

constexpr qsizetype kKeptBytes = 4000;
constexpr qsizetype kShownLines = 4;
constexpr qsizetype kShownLength = 120;
constexpr int kMostLines = 500;             // an answer of more has no end
constexpr qint64 kGoodbyePatience = 2'000;  // milliseconds
constexpr char kStartTls[] = "STARTTLS";
constexpr char kAuth[] = "AUTH";
constexpr char kRecipient[] = "RCPT TO";

constexpr QStringView kLate = u"o servidor de e-mail não respondeu a tempo";
constexpr QStringView kNoSafeLine = u"o servidor não iniciou a conexão segura";
constexpr QStringView kTooLarge = u"a mensagem é grande demais para o servidor";
constexpr QStringView kEndless = u"o servidor de e-mail respondeu com linhas demais";

/// What it means for the user when the server turns a command down. "%1" is the command's address.
constexpr std::pair<const char*, QStringView> kSteps[] = {
    {"EHLO", u"o servidor recusou a conexão"},
    {"HELO", u"o servidor recusou a conexão"},
    {kStartTls, kNoSafeLine},
    {kAuth, u"o servidor recusou o usuário ou a senha"},
    {"MAIL FROM", u"o servidor recusou o remetente %1"},
    {kRecipient, u"o servidor recusou o destinatário %1"},
    {"DATA", u"o servidor recusou a mensagem"},
};

/// Faults of the line, which have words of their own whatever the step.
constexpr std::pair<CURLcode, QStringView> kFaults[] = {
    {CURLE_URL_MALFORMAT, u"o endereço do servidor de e-mail não é válido"},
    {CURLE_COULDNT_RESOLVE_HOST, u"o servidor de e-mail não foi encontrado"},
    {CURLE_COULDNT_CONNECT, u"não foi possível conectar ao servidor de e-mail"},
    {CURLE_PEER_FAILED_VERIFICATION, u"o certificado do servidor de e-mail não é de confiança"},
    {CURLE_SSL_CACERT_BADFILE, u"o arquivo de certificados de confiança não pôde ser lido"},
    {CURLE_SSL_CONNECT_ERROR, u"a conexão segura com o servidor de e-mail falhou"},
    {CURLE_LOGIN_DENIED, u"o servidor não aceita o login por usuário e senha"},
    {CURLE_OPERATION_TIMEDOUT, kLate},
    {CURLE_RECV_ERROR, u"a conexão com o servidor de e-mail caiu"},
    {CURLE_SEND_ERROR, u"a conexão com o servidor de e-mail caiu"},
    {CURLE_GOT_NOTHING, u"a conexão com o servidor de e-mail caiu"},
};

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

/// Whether a line of an answer offers TLS, in whatever letters.
bool offersTls(const QByteArray& line) {
  return line.mid(4).simplified().toUpper().split(' ').first() == kStartTls;
}

/// Whether an answer refuses a message for its size: by a code of its own (RFC 3463), or by 552 alone, which
/// in the answer to a recipient is that of a full mailbox.
bool isForSize(const QByteArray& answer, const QByteArray& command) {
  static const QRegularExpression own(u"^5\\d\\d[ -]5\\.(3\\.4|2\\.3)\\b"_s);
  static const QRegularExpression bare(u"^552(?![ -]\\d\\.\\d)"_s);
  const QString text = QString::fromLatin1(answer);
  return text.contains(own) || (command != kRecipient && text.contains(bare));
}

bool isShown(QChar c) { return c == u'\n' || (c.isPrint() && c.category() != QChar::Other_Format); }

/// A server's answer for an error box: its first lines, cut to a length that fits, without control characters
/// and secrets.
QString answerText(const QByteArray& answer, const QStringList& secrets) {
  QString text = QString::fromUtf8(answer);
  std::ranges::replace_if(
      text, [](QChar c) { return !isShown(c); }, QChar(u' '));
  for (const QString& secret : secrets) text.replace(secret, u"•••"_s, Qt::CaseInsensitive);
  QStringList lines;
  for (const QString& line : text.split(u'\n'))
    if (const QString words = line.simplified(); !words.isEmpty())
      lines << (words.size() > kShownLength ? words.first(kShownLength) + u'…' : words);
  if (lines.size() > kShownLines) lines = lines.first(kShownLines) << u"…"_s;
  return lines.join(u'\r');
}

}  // namespace

Dialogue::Dialogue(bool encrypted, const QString& password, int patience)
    : encrypted_(encrypted), patience_(qint64{1000} * patience) {
  if (!password.isEmpty()) secrets_ << password;
}

void Dialogue::listenTo(CURL* handle) {
  const auto overhear = [](CURL*, curl_infotype type, char* data, size_t size, void* self) {
    auto* dialogue = static_cast<Dialogue*>(self);
    if (type == CURLINFO_HEADER_OUT) dialogue->said(QByteArray(data, static_cast<qsizetype>(size)));
    if (type == CURLINFO_DATA_OUT) dialogue->answer_.clear();
    return 0;
  };
  // The client ends the transfer before it acts on a line that was not taken.
  const auto hear = [](char* line, size_t size, size_t count, void* self) {
    const QByteArray all(line, static_cast<qsizetype>(size * count));
    return static_cast<Dialogue*>(self)->takes(all) ? size * count : 0;
  };
  const auto watch = [](void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent) {
    return static_cast<Dialogue*>(self)->goesOn(sent) ? 0 : 1;
  };
  curl_easy_setopt(handle, CURLOPT_VERBOSE, 1L);
  curl_easy_setopt(handle, CURLOPT_DEBUGFUNCTION, +overhear);
  curl_easy_setopt(handle, CURLOPT_DEBUGDATA, this);
  curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, +hear);
  curl_easy_setopt(handle, CURLOPT_HEADERDATA, this);
  curl_easy_setopt(handle, CURLOPT_NOPROGRESS, 0L);
  curl_easy_setopt(handle, CURLOPT_XFERINFOFUNCTION, +watch);
  curl_easy_setopt(handle, CURLOPT_XFERINFODATA, this);
}

bool Dialogue::goesOn(curl_off_t sent) {
  if (goodbye_.isValid()) return ended_.isEmpty() && !goodbye_.hasExpired(kGoodbyePatience);
  if (sent != sent_) moved_.start();
  sent_ = sent;
  if (moved_.isValid() && moved_.hasExpired(patience_)) {
    late_ = true;
    ended_ = kLate.toString();
  }
  return ended_.isEmpty();
}

void Dialogue::said(const QByteArray& line) {
  if (goodbye_.isValid()) return;
  if (line.startsWith("QUIT")) return goodbye_.start();
  answer_.clear();
  lines_ = 0;
  moved_.start();
  if (command_ == kStartTls) encrypted_ = true;
  for (const auto& [command, failure] : kSteps) {
    if (!isCommand(line, command)) continue;
    command_ = command;
    step_ = failure.toString();
    if (step_.contains(u"%1")) step_ = step_.arg(addressIn(line));
    return;
  }
  // A line that is no command goes on with the one before it: the parts of a login.
  if (const QByteArray part = line.trimmed(); !part.isEmpty()) secrets_ << QString::fromUtf8(part);
}

bool Dialogue::takes(const QByteArray& line) {
  if (goodbye_.isValid()) return true;
  if (answer_.size() < kKeptBytes) answer_ += line.first(std::min(line.size(), kKeptBytes));
  if (++lines_ > kMostLines) ended_ = kEndless.toString();
  // What the client passes over would leave the line open: an offer in other letters or after another
  // command, a refusal.
  const bool overlooked = offersTls(line) && !(command_ == "EHLO" && line.mid(4).startsWith(kStartTls));
  const bool declined = command_ == kStartTls && !line.startsWith("220");
  if (!encrypted_ && (overlooked || declined)) ended_ = kNoSafeLine.toString();
  return ended_.isEmpty();
}

bool Dialogue::refused() const { return answer_.startsWith('4') || answer_.startsWith('5'); }

QString Dialogue::failure(CURLcode result) const {
  if (!ended_.isEmpty()) return ended_;
  if (refused() && isForSize(answer_, command_)) return kTooLarge.toString();
  if (refused() && !step_.isEmpty()) return step_;
  for (const auto& [code, failure] : kFaults)
    if (code == result) return failure.toString();
  return u"o servidor recusou a conexão"_s;
}

bool Dialogue::silence(CURLcode result) const {
  return late_ || result == CURLE_COULDNT_RESOLVE_HOST || result == CURLE_COULDNT_CONNECT ||
         result == CURLE_OPERATION_TIMEDOUT;
}

QStringList Dialogue::details(const QString& server) const {
  // What a server makes of a password in its answer to the login is anybody's guess: the code alone is shown.
  const QString answer = command_ == kAuth && !answer_.isEmpty()
                             ? QString::number(answer_.left(3).toInt()) + u" •••"_s
                             : answerText(answer_, secrets_);
  return {u"Servidor: "_s + server, u"Resposta: "_s + (answer.isEmpty() ? u"nenhuma"_s : answer)};
}

}  // namespace mail
