// The fuzz targets. Each accepts any bytes and must not crash, leak or fail its checks.
#pragma once

#include <QtCore/QByteArray>
#include <cstdio>
#include <cstdlib>

namespace kesto::fuzz {

/// Ends the program when a condition does not hold.
inline void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

void runAnswer(const QByteArray& input);       ///< A printer's answer into the folder list and the pop-up.
void runHead(const QByteArray& input);         ///< What a print server answers, through libcups's HTTP.
void runLayout(const QByteArray& input);       ///< A form into the loader, then every control is used.
void runPpd(const QByteArray& input);          ///< A PPD's attributes and a device URI into the facts.
void runPreferences(const QByteArray& input);  ///< A preference file into construction, restore and save.
void runReply(const QByteArray& input);        ///< A print server's reply in IPP.
void runResponse(const QByteArray& input);     ///< An HTTP response, whole and in pieces.
void runScript(const QByteArray& input);       ///< The commands of kesto-panel.
void runSettings(const QByteArray& input);     ///< Print settings into the reader, then the writer.
void runTicket(const QByteArray& input);       ///< A job's options through the demo filter to the printer.
void runValues(const QByteArray& input);       ///< Value helpers, encodings and the cipher on raw bytes.

}  // namespace kesto::fuzz
