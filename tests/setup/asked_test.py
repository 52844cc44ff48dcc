#!/usr/bin/env python3
"""Each mistake that setup/asked.py looks for is found, and what is right is let through."""
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "setup"))
import asked  # noqa: E402

GOOD = """
Asked<GridRow> row(data::Recordset item, data::Literal column, std::vector<std::pair<int, QString>> kept) {
  auto code = CodeOf(item.text(u"id"));  // { ? << waitFor
  const QString unit = co_await UnitOf(item.text(u"unit?<<{"));
  if (unit.isEmpty()) { co_return GridRow{{0, u"-"_s}}; }
  const QString own = co_await code;
  const int found = own.isEmpty() ? 0 : 1;
  Line line;
  line << own << unit;
  for (const auto& [place, text] : kept) line << text;
  co_return found > 0 ? GridRow{{0, own}, {1, unit}} : GridRow();
}
Asked<QString> plain(const QString& id) { return CodeOf(id); }
QString caller(const QString& id) {
  auto all = startEachRow(rs, [&](const Recordset& rs) { return row(rs, u"a", {}); });
  return files::exists(id) ? waitFor(CodeOf(id)) : QString();
}
Asked<QString> Screen::member(QString id) const { co_return co_await CodeOf(id); }
auto lambda = [](QString id) -> Asked<QString> { co_return co_await CodeOf(id); };
"""

BAD = {
    "Asked<int> f(const QString& id) { co_return co_await g(id); }": "reference",
    "Asked<int> f(data::Connection* on) { co_return co_await on->ask(u\"a\"_s); }": "reference",
    "Asked<int> f(QString a, QStringView column) { co_return co_await g(a); }": "view",
    "Asked<int> f(std::span<const int> ids) { co_return co_await g(ids); }": "view",
    "void f() { auto l = [&]() -> Asked<int> { co_return co_await g(); }; }": "captures",
    "void f() { auto l = [id] { co_return co_await g(id); }; }": "captures",
    "Asked<int> f(QString id) { const int a = waitFor(g(id)); co_return a; }": "waitFor",
    "Asked<int> f(QString id) { if (id.isEmpty()) { co_return waitFor(g(id)); } co_return 1; }": "waitFor",
    "Asked<int> f(QString id) { const int a = id.isEmpty() ? 0 : co_await g(id); co_return a; }": "?:",
    "Asked<int> f(QString id) { const int a = co_await g(id.isEmpty() ? h() : id); co_return a; }": "?:",
    "Asked<int> f(QString id) { QStringList l; l << id << co_await g(id); co_return l; }": "<<",
    "Asked<int> f(QString id) { co_return Pair{id, co_await g(id)}; }": "braces",
    "Asked<int> f(QString id) { const int a = co_await g({id, 1}); co_return a; }": "braces",
    "Asked<int> f(QString id) { const int a = co_await g(id); files::write(id, a); co_return a; }": "file",
    "Asked<int> f(QString id) { const int a = co_await g(id); forms::form<frmX>().show(); co_return a; }": "screen",
}


class AskedRules(unittest.TestCase):
    def test_what_is_right_passes(self):
        self.assertEqual(list(asked.faults(GOOD)), [])

    def test_each_mistake_is_found(self):
        for source, word in BAD.items():
            with self.subTest(source):
                found = {fault for _, fault in asked.faults(source)}
                self.assertEqual(len(found), 1, found)
                self.assertIn(word, found.pop())


if __name__ == "__main__":
    unittest.main()
