#include "sqlserver/tds_server.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QRegularExpression>
#include <QtEndian>
#include <chrono>
#include <optional>

#include "platform/data/engine.h"
#include "platform/values/runtime_error.h"
#include "schema/tables.h"
#include "sqlserver/tds_tokens.h"

using namespace Qt::StringLiterals;

namespace sqlserver {

namespace {

using tds::Packet;

struct Message {
  Packet type;
  QByteArray body;
};

/// Thrown where a session ends without an answer.
struct Ended {};

/// One client's connection: reads messages, runs them, answers.
class Session {
 public:
  Session(TdsServer& server, int socket) : server_(server), socket_(socket) {}

  void run() {
    try {
      while (true) answer(receive());
    } catch (const Ended&) {
    }
    ::shutdown(socket_, SHUT_RDWR);
  }

 private:
  QByteArray receiveBytes(std::size_t count) const;
  Message receive() const;
  /// whole: nothing comes after it.
  void send(const QByteArray& body, bool whole = true) const;
  void answer(const Message& message);
  [[noreturn]] void beSilent() const;
  void faultOn(const QString& statement) const;

  void logIn(const QByteArray& message);
  void runRequest(const QString& text);
  void runStatement(const QString& sql, tds::Response& response, bool more);
  void runTransaction(const tds::TransactionRequest& request);
  void begin(tds::Response& response);
  void rollBack(tds::Response& response, const QString& why);
  /// half: its result ends in the middle.
  void execute(const QString& sql, tds::Response& response, bool more, bool half);
  data::Recordset runEmbedded(const QString& sql) const;

  TdsServer& server_;
  int socket_;
  std::unique_ptr<data::Engine> engine_;
  quint64 transaction_ = 0;
  qint64 limit_ = 0;  // SET ROWCOUNT; 0: none
};

QByteArray Session::receiveBytes(std::size_t count) const {
  QByteArray bytes(static_cast<qsizetype>(count), Qt::Uninitialized);
  if (count > 0 && ::recv(socket_, bytes.data(), count, MSG_WAITALL) != static_cast<ssize_t>(count))
    throw Ended();
  return bytes;
}

Message Session::receive() const {
  constexpr std::size_t kHeader = 8;
  Message message{};
  while (true) {
    const QByteArray header = receiveBytes(kHeader);
    const auto length = qFromBigEndian<quint16>(header.constData() + 2);
    message.type = static_cast<Packet>(header[0]);
    message.body += receiveBytes(length - kHeader);
    if (header[1] & 1) return message;
  }
}

void Session::send(const QByteArray& body, bool whole) const {
  std::this_thread::sleep_for(std::chrono::milliseconds(server_.delay()));
  constexpr qsizetype kPacket = 4096 - 8;
  QByteArray bytes;
  for (qsizetype at = 0; at < body.size(); at += kPacket) {
    const QByteArray part = body.mid(at, kPacket);
    QByteArray header(8, '\0');
    header[0] = static_cast<char>(Packet::Response);
    header[1] = whole && at + kPacket >= body.size() ? 1 : 0;
    qToBigEndian(static_cast<quint16>(part.size() + 8), header.data() + 2);
    bytes += header + part;
  }
  if (::send(socket_, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL) !=
      bytes.size())
    throw Ended();
}

void Session::beSilent() const {
  while (true) (void)receiveBytes(1);
}

void Session::faultOn(const QString& statement) const {
  const TdsServer::Act act = server_.actOn(statement);
  if (act == TdsServer::Act::Silence) beSilent();
  if (act == TdsServer::Act::Cut || act == TdsServer::Act::CutInside) throw Ended();
}

void Session::answer(const Message& message) {
  tds::Response response;
  if (message.type != Packet::Prelogin && message.type != Packet::Login) server_.countRequest();
  switch (message.type) {
    case Packet::Prelogin:
      return send(tds::preloginAnswer());
    case Packet::Login:
      return logIn(message.body);
    case Packet::Batch:
      return runRequest(tds::throughCodePage(tds::parseBatch(message.body)));
    case Packet::Transaction:
      return runTransaction(tds::parseTransaction(message.body));
    case Packet::Attention:
      response.done(tds::Response::End::Attention);
      return send(response.bytes());
    default:
      response.refuse(2812, u"Could not find stored procedure."_s);
      return send(response.bytes());
  }
}

void Session::logIn(const QByteArray& message) {
  faultOn(u"LOGIN"_s);
  const tds::Login login = tds::parseLogin(message);
  tds::Response response;
  if (login.user != TdsServer::User || login.password != TdsServer::Password) {
    response.refuse(18456, u"Login failed for user '%1'."_s.arg(login.user));
  } else if (login.database != TdsServer::Database) {
    response.refuse(911, u"Database '%1' does not exist."_s.arg(login.database));
  } else {
    engine_ = data::openEmbedded(server_.databasePath());
    response.loginAcknowledged(login.database);
    response.done(tds::Response::End::Plain);
  }
  send(response.bytes());
}

/// Whether a quote is left open; those in a comment don't count.
bool leavesQuoteOpen(const QString& text) {
  bool open = false;
  for (const QString& line : text.split(u'\n')) {
    for (qsizetype at = 0; at < line.size(); ++at) {
      if (!open && QStringView(line).sliced(at).startsWith(u"--")) break;
      if (line[at] == u'\'') open = !open;
    }
  }
  return open;
}

/// The statements of a request: each begins a line outside quotes.
QStringList statementsOf(const QString& text) {
  static const QRegularExpression kBegin(u"\\A(select|insert|update|delete|set)\\b"_s,
                                         QRegularExpression::CaseInsensitiveOption);
  QStringList statements;
  bool quoted = false;
  for (const QString& line : text.split(u'\n')) {
    if (statements.isEmpty() || (!quoted && kBegin.match(line).hasMatch()))
      statements << line;
    else
      statements.last() += u'\n' + line;
    if (line.count(u'\'') % 2 == 1) quoted = !quoted;
  }
  return statements;
}

void Session::runRequest(const QString& text) {
  tds::Response response;
  try {
    if (leavesQuoteOpen(text))
      throw values::RuntimeError(values::kStatementFailed, u"Unclosed quotation mark."_s);
    const QStringList statements = statementsOf(text);
    for (qsizetype i = 0; i < statements.size(); ++i)
      runStatement(statements[i], response, i + 1 < statements.size());
  } catch (const values::RuntimeError& error) {
    rollBack(response, error.text());
  }
  send(response.bytes());
}

void Session::runStatement(const QString& sql, tds::Response& response, bool more) {
  const TdsServer::Act act = server_.actOn(sql);
  if (act == TdsServer::Act::Silence) beSilent();
  if (act == TdsServer::Act::Refuse)
    throw values::RuntimeError(values::kStatementFailed, u"The permission was denied on the object."_s);
  const bool another = act == TdsServer::Act::Another;
  if (act != TdsServer::Act::Cut) execute(sql, response, more || another, act == TdsServer::Act::CutInside);
  if (another) execute(u"SELECT 7 AS nome"_s, response, more, false);
  if (act == TdsServer::Act::Answer || another) return;
  send(response.bytes(), false);
  throw Ended();
}

void Session::rollBack(tds::Response& response, const QString& why) {
  if (transaction_ != 0) runEmbedded(u"ROLLBACK"_s);
  response.error(245, why);
  if (transaction_ != 0)
    response.transactionChanged(tds::Environment::Rollback, std::exchange(transaction_, 0));
  response.done(tds::Response::End::Failed);
}

/// How a column of a result travels: by the schema's column of that name, else by its first value.
tds::Column wireColumn(const QString& name, const QString& sql, const data::Recordset& result) {
  if (sql.contains(u"@@identity"_s, Qt::CaseInsensitive)) return {name, tds::Type::Identity};
  for (const schema::Table& table : schema::tables())
    for (const schema::Column& column : table.columns) {
      if (name.compare(column.name, Qt::CaseInsensitive) != 0) continue;
      if (column.type == schema::Type::Decimal) return {name, tds::Type::Decimal};
      if (column.type == schema::Type::DateTime) return {name, tds::Type::DateTime};
      if (column.type == schema::Type::Memo || column.type == schema::Type::Text)
        return {name, tds::Type::Text, column.length};
      return {name, tds::Type::Integer};
    }
  bool whole = false;
  if (!result.eof()) result.text(name).toInt(&whole);
  return {name, whole ? tds::Type::Integer : tds::Type::Text};
}

/// The embedded file's statements for one of the server's, under a limit on the rows.
QStringList embeddedStatements(const QString& sql, qint64 limit) {
  static const QRegularExpression kCreate(u"\\A\\s*CREATE TABLE (\\w+)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression kUpdate(u"\\A(UPDATE (\\w+) SET .*)(WHERE .*)\\z"_s,
                                          QRegularExpression::CaseInsensitiveOption);
  if (const auto update = kUpdate.match(sql); limit > 0 && update.hasMatch())
    return {u"%1 WHERE rowid IN (SELECT rowid FROM %2 %3 LIMIT %4)"_s.arg(
        update.captured(1), update.captured(2), update.captured(3), QString::number(limit))};
  const auto create = kCreate.match(sql);
  const schema::Table* table = create.hasMatch() ? schema::find(create.captured(1)) : nullptr;
  if (!table) return {sql};
  QStringList statements = schema::createStatements(*table, schema::Dialect::Embedded);
  statements.removeIf([](const QString& one) { return one.startsWith(u"CREATE INDEX"_s); });  // these come
  return statements;
}

void Session::execute(const QString& sql, tds::Response& response, bool more, bool half) {
  static const QRegularExpression kLimit(u"\\ASET ROWCOUNT (\\d+)"_s);
  using End = tds::Response::End;
  if (const auto limit = kLimit.match(sql); limit.hasMatch()) limit_ = limit.captured(1).toLongLong();
  if (sql.startsWith(u"SET "_s, Qt::CaseInsensitive)) return response.done(End::Plain, 0, more);
  for (const QString& statement : embeddedStatements(sql, limit_)) {
    data::Recordset result = runEmbedded(statement);
    if (!result.isOpen()) continue;
    std::vector<tds::Column> columns;
    for (const QString& name : result.columns()) columns.push_back(wireColumn(name, statement, result));
    response.columns(columns);
    qint64 rows = limit_ > 0 ? qMin<qint64>(limit_, result.count()) : result.count();
    if (half) rows /= 2;
    for (qint64 row = 0; row < rows; ++row, result.moveNext()) response.row(columns, result);
    return half ? void() : response.done(End::Counted, rows, more);
  }
  if (!half) response.done(End::Counted, 0, more);
}

data::Recordset Session::runEmbedded(const QString& sql) const {
  const data::ReadStatement statement = data::readStatement({sql});
  std::vector<data::Recordset> results;
  engine_->run({&statement, 1}, results);
  return results.front();
}

void Session::begin(tds::Response& response) {
  engine_->begin();
  response.transactionChanged(tds::Environment::Begin, ++transaction_);
}

void Session::runTransaction(const tds::TransactionRequest& request) {
  enum { Begin = 5, Commit = 7 };
  tds::Response response;
  const bool commits = request.kind == Commit;
  if (request.kind == Begin) {
    faultOn(u"BEGIN"_s);
    begin(response);
  } else if (transaction_ == 0) {
    response.refuse(3902, u"The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION."_s);
    return send(response.bytes());
  } else {
    faultOn(commits ? u"COMMIT"_s : u"ROLLBACK"_s);
    runEmbedded(commits ? u"COMMIT"_s : u"ROLLBACK"_s);
    response.transactionChanged(commits ? tds::Environment::Commit : tds::Environment::Rollback,
                                std::exchange(transaction_, 0));
    if (request.beginsAnother) begin(response);
  }
  response.done(tds::Response::End::Plain);
  send(response.bytes());
}

}  // namespace

TdsServer::TdsServer() {
  data::createEmbedded(databasePath());
  listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  if (::bind(listener_, generic, size) != 0 || ::listen(listener_, 16) != 0 ||
      ::getsockname(listener_, generic, &size) != 0)
    qFatal("no port for the test server");
  port_ = ntohs(address.sin_port);
  accepting_ = std::thread([this] { accept(); });
}

TdsServer::~TdsServer() {
  stop();
  for (std::thread& session : sessions_) session.join();
  for (const int socket : sockets_) ::close(socket);
}

void TdsServer::stop() {
  if (listener_ < 0) return;
  ::shutdown(listener_, SHUT_RDWR);
  accepting_.join();
  ::close(std::exchange(listener_, -1));
  const std::scoped_lock lock(guard_);
  for (const int socket : sockets_) ::shutdown(socket, SHUT_RDWR);
}

void TdsServer::accept() {
  while (true) {
    const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (socket < 0) return;
    const std::scoped_lock lock(guard_);
    sockets_.push_back(socket);
    sessions_.emplace_back([this, socket] { Session(*this, socket).run(); });
  }
}

QString TdsServer::databasePath() const { return folder_.filePath(u"servidor.db"_s); }

QString TdsServer::connectionString(const QString& password) const {
  return u"driver={SQL Server};server=127.0.0.1;uid=%1;pwd=%2;database=%3;port=%4"_s.arg(
      User, password, Database, QString::number(port_));
}

QString TdsServer::configurationLine() {
  return u"127.0.0.1^%1^%2^%3^MS-SQL^^False^"_s.arg(Database, User, Password);
}

QString TdsServer::rightOf(const QString& statement) {
  static const QRegularExpression kForm(
      u"\\A\\s*(?:(SELECT)\\b.*?\\bFROM|(INSERT) INTO|(UPDATE)|(DELETE)(?: FROM)?)\\s+(\\w+)"_s,
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  const auto match = kForm.match(statement);
  if (!match.hasMatch()) return {};
  QString act;
  for (int one = 1; one <= 4; ++one) act += match.captured(one).toUpper();
  return act + u' ' + match.captured(5).toLower();
}

void TdsServer::setFault(std::function<Act(const QString&)> fault) {
  const std::scoped_lock lock(guard_);
  fault_ = std::move(fault);
}

TdsServer::Act TdsServer::actOn(const QString& statement) {
  const std::scoped_lock lock(guard_);
  return fault_ ? fault_(statement) : Act::Answer;
}

}  // namespace sqlserver
