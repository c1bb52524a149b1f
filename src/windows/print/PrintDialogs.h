#pragma once

#include <functional>

class QPagedPaintDevice;
class QPageSize;
class QString;
class QWidget;

namespace qismora {

/// A print job: the document, and the page settings with which the dialog starts.
struct PrintJob {
  const QString& Name;
  const QPageSize& Paper;
  double MarginInMillimetres;
  std::function<void(QPagedPaintDevice&)> Paint;
};

/// The one function of the plugin: shows the preview, from which the user prints, or the printer dialog.
using ShowPrintDialog = void (*)(QWidget* window, const PrintJob& job, bool preview);
inline constexpr const char* ShowPrintDialogName = "ShowQismoraPrintDialog";
inline constexpr const char* PrintPluginName = "qismora_print.so";

}  // namespace qismora
