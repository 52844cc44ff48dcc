#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "platform/data/recordset.h"

// What a server of the Tabular Data Stream protocol, version 7.4, says.
namespace sqlserver::tds {

/// Numbers of the packet types in use.
enum class Packet : quint8 {
  Batch = 0x01,
  Response = 0x04,
  Attention = 0x06,
  Transaction = 0x0E,
  Login = 0x10,
  Prelogin = 0x12
};

enum class Environment : quint8 {
  Database = 1,
  PacketSize = 4,
  Collation = 7,
  Begin = 8,
  Commit = 9,
  Rollback = 10
};

/// How a column travels.
enum class Type { Integer, Decimal, Identity, DateTime, Text };

struct Column {
  QString name;
  Type type;
  int length = 0;  ///< of a text; 0 for one without a limit
};

/// A response, built token by token.
class Response {
 public:
  void loginAcknowledged(const QString& database);
  void transactionChanged(Environment kind, quint64 transaction);
  void columns(const std::vector<Column>& columns);
  void row(const std::vector<Column>& columns, const data::Recordset& result);
  void error(qint32 number, const QString& text);
  /// An error and the end of the response.
  void refuse(qint32 number, const QString& text);
  /// How a statement ended: with a count, without one (a setting), or by an error; or an attention's answer.
  enum class End : quint16 { Counted = 0x0010, Plain = 0, Failed = 0x0002, Attention = 0x0020 };
  /// more: the result of another statement follows.
  void done(End end, qint64 rows = 0, bool more = false);
  [[nodiscard]] const QByteArray& bytes() const { return bytes_; }

 private:
  void environment(Environment kind, const QByteArray& now, const QByteArray& before);
  void value(const Column& column, const data::Recordset& result);
  void text(const Column& column, const QByteArray& text);

  QByteArray bytes_;
};

/// The answer to a pre-login: version and "no encryption".
[[nodiscard]] QByteArray preloginAnswer();

/// The fields of a login that the server looks at.
struct Login {
  QString user, password, database;
};
[[nodiscard]] Login parseLogin(const QByteArray& message);

/// The statement of a batch, after its headers.
[[nodiscard]] QString parseBatch(const QByteArray& message);

/// What is to become of a transaction.
struct TransactionRequest {
  quint16 kind;
  bool beginsAnother;  ///< a commit or roll-back that begins the next one at once
};
[[nodiscard]] TransactionRequest parseTransaction(const QByteArray& message);

/// Code page 1252, which the columns of the server are in; other characters become "?".
[[nodiscard]] QByteArray toCodePage(const QString& text);
[[nodiscard]] QString throughCodePage(const QString& text);

}  // namespace sqlserver::tds
