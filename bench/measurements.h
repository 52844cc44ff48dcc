#pragma once

// The measurements by subject; each makes its own company and keeps its lines for the summary.
namespace bench {

void openingAndSaving();  // quotes.cpp

/// What a handler waits for while a draft of the quote is handed to the thread that writes it; beside it the
/// time that it may take (drafts.cpp).
void keepingDrafts();

// searches.cpp
void searching();
void dropping();
void lookingUp();
void including();

void documents();  // documents.cpp
/// The picture page of found articles, without the browser (pages.cpp).
void picturing();
/// Imprimir to a page that can be read, memory and printing, each in a process of its own (panes.cpp).
void showing();
/// What the child process of showing() does with a quote of so many lines: prints its figures, ends.
int documentAsChild(int lines);
/// The same actions with the database on the tests' server and a network of 10 ms, beside the embedded
/// file: time and requests (server.cpp).
void farServer();
/// Start to the idle screen and resident memory, each in a process of its own (start.cpp).
void starting();

/// What the child process of starting() does: starts the program on a company, says when it is idle, ends
/// (start.cpp).
int startAsChild();

}  // namespace bench
