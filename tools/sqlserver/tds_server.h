#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace sqlserver {

/// A small server on loopback that speaks the server's protocol on top of the embedded engine. It takes the
/// server's dialect of CREATE TABLE for the tables of the schema. As on the server, a failing statement rolls
/// its transaction back and ends its request, an odd quote refuses the whole request, SET ROWCOUNT stays
/// until it is lifted, and texts are in code page 1252. In a request of several statements each stands on a
/// line of its own. One thread for each connection.
class TdsServer {
 public:
  /// What becomes of a statement: it is answered, refused for want of a right, the connection is cut in front
  /// of its result or in the middle of it, no answer ever comes, or a row that nobody asked for comes behind
  /// its result.
  enum class Act { Answer, Refuse, Cut, CutInside, Silence, Another };

  static inline const QString User = QStringLiteral("vendas");
  static inline const QString Password = QStringLiteral("Segredo1");
  static inline const QString Database = QStringLiteral("zarim");

  TdsServer();
  ~TdsServer();

  [[nodiscard]] quint16 port() const { return port_; }
  /// As the program builds it, with the port added.
  [[nodiscard]] QString connectionString(const QString& password = Password) const;
  /// The line of server.ini that leads here; the port goes by TDSPORT.
  [[nodiscard]] static QString configurationLine();
  [[nodiscard]] QString databasePath() const;

  /// The right that a statement needs, as it would be granted: "INSERT prop_cmrc", small letters in the
  /// table's name; of a read its first table's. Empty for what is neither read nor written.
  [[nodiscard]] static QString rightOf(const QString& statement);

  /// Asked before every statement, "LOGIN", "BEGIN", "COMMIT" and "ROLLBACK" among them.
  void setFault(std::function<Act(const QString&)> fault);
  [[nodiscard]] Act actOn(const QString& statement);
  /// How many requests came since the last call: messages of the client's after the login.
  [[nodiscard]] int requests() { return requests_.exchange(0); }
  void countRequest() { ++requests_; }
  /// Waits so many milliseconds before each answer, as a network does.
  void setDelay(int milliseconds) { delay_ = milliseconds; }
  [[nodiscard]] int delay() const { return delay_; }
  /// Closes the listening socket and all connections, as a server that is switched off.
  void stop();

 private:
  void accept();

  QTemporaryDir folder_;
  int listener_ = -1;
  quint16 port_ = 0;
  std::atomic<int> requests_ = 0;
  std::atomic<int> delay_ = 0;
  std::mutex guard_;
  std::function<Act(const QString&)> fault_;
  std::vector<int> sockets_;
  std::vector<std::thread> sessions_;
  std::thread accepting_;
};

}  // namespace sqlserver
