#include "ui/QtPlatform.h"

#include "platform/ImageHeader.h"

#include <QClipboard>
#include <QColorDialog>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

namespace tessarine {

namespace {
QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}
std::string S(const QString& s) {
  return s.toUtf8().toStdString();
}
QString KeyPath(const std::string& section, const std::string& key) {
  return Q(section) + QLatin1Char('/') + Q(key);
}
}  // namespace

// The file is found afresh each time: QSettings would keep the first XDG_CONFIG_HOME it saw.
QtSettingsStore::QtSettingsStore()
    : settings_(
          new QSettings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                            "/Tessarine/Tessarine.ini",
                        QSettings::IniFormat)) {}

QtSettingsStore::~QtSettingsStore() {
  delete settings_;
}

QString QtSettingsStore::FileName() const {
  return settings_->fileName();
}

std::string QtSettingsStore::GetSetting(const std::string& section, const std::string& key,
                                        const std::string& defaultValue) const {
  const QVariant v = settings_->value(KeyPath(section, key));
  if (!v.isValid()) return defaultValue;
  // A value that reads back as a list was written by hand with commas: keep its text.
  if (v.userType() == QMetaType::QStringList) return S(v.toStringList().join(", "));
  return S(v.toString());
}

void QtSettingsStore::SaveSetting(const std::string& section, const std::string& key,
                                  const std::string& value) {
  settings_->setValue(KeyPath(section, key), Q(value));
  settings_->sync();
}

void QtSettingsStore::DeleteSetting(const std::string& section, const std::string& key) {
  settings_->remove(KeyPath(section, key));
  settings_->sync();
}

MsgAnswer QtMessageBoxes::Show(const std::string& text, MsgButtons buttons, MsgIcon icon,
                               const std::string& title) {
  QMessageBox box(parent_);
  box.setWindowTitle(Q(title));
  box.setText(Q(text));
  switch (icon) {
    case MsgIcon::Critical:
      box.setIcon(QMessageBox::Critical);
      break;
    case MsgIcon::Question:
      box.setIcon(QMessageBox::Question);
      break;
    case MsgIcon::Exclamation:
      box.setIcon(QMessageBox::Warning);
      break;
    case MsgIcon::Information:
      box.setIcon(QMessageBox::Information);
      break;
    case MsgIcon::None:
      break;
  }
  QMessageBox::StandardButtons b = QMessageBox::Ok;
  switch (buttons) {
    case MsgButtons::OK:
      b = QMessageBox::Ok;
      break;
    case MsgButtons::OKCancel:
      b = QMessageBox::Ok | QMessageBox::Cancel;
      break;
    case MsgButtons::YesNo:
      b = QMessageBox::Yes | QMessageBox::No;
      break;
    case MsgButtons::YesNoCancel:
      b = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
      break;
    case MsgButtons::RetryCancel:
      b = QMessageBox::Retry | QMessageBox::Cancel;
      break;
  }
  box.setStandardButtons(b);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return MsgAnswer::Yes;
    case QMessageBox::No:
      return MsgAnswer::No;
    case QMessageBox::Retry:
      return MsgAnswer::Retry;
    case QMessageBox::Ok:
      return MsgAnswer::OK;
    default:
      return MsgAnswer::Cancel;
  }
}

QString QtFileDialogs::ToQtFilter(const std::string& filter, QStringList* list) {
  const QStringList parts = Q(filter).split(QLatin1Char('|'));
  QStringList out;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    // Qt reads the patterns from the label's last brackets: a label that shows its own
    // ("All Files (*.*)") gets the real ones there instead of a second pair.
    QString label = parts[i].trimmed();
    if (label.endsWith(QLatin1Char(')')) && label.lastIndexOf(QLatin1Char('(')) > 0)
      label = label.left(label.lastIndexOf(QLatin1Char('('))).trimmed();
    out << label + " (" + patterns + ")";
  }
  if (list) *list = out;
  return out.join(";;");
}

FileDialogAnswer QtFileDialogs::Show(const FileDialogRequest& r) {
  QFileDialog dialog(parent_, Q(r.title), Q(r.initialFolder));
  QStringList filters;
  ToQtFilter(r.filter, &filters);
  dialog.setNameFilters(filters);
  if (r.filterIndex >= 1 && r.filterIndex <= filters.size())
    dialog.selectNameFilter(filters[r.filterIndex - 1]);
  dialog.setAcceptMode(r.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(r.save          ? QFileDialog::AnyFile
                     : r.multiSelect ? QFileDialog::ExistingFiles
                                     : QFileDialog::ExistingFile);
  if (!r.confirmOverwrite) dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!r.fileName.empty()) dialog.selectFile(Q(r.fileName));
  FileDialogAnswer a;
  a.filterIndex = r.filterIndex;
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return a;
  const QStringList chosen = dialog.selectedFiles();
  if (chosen.size() == 1) {
    a.path = S(chosen.first());
  } else {
    // Several files: the folder, then each name, NUL-separated.
    a.path = S(QFileInfo(chosen.first()).absolutePath());
    for (const QString& f : chosen) a.path += '\0' + S(QFileInfo(f).fileName());
  }
  a.filterIndex = static_cast<int>(filters.indexOf(dialog.selectedNameFilter())) + 1;
  return a;
}

bool QtColorDialog::PickColor(std::int32_t initial, std::int32_t& chosen) {
  // Colour numbers have red in the low byte.
  const QColor start(initial & 0xFF, (initial >> 8) & 0xFF, (initial >> 16) & 0xFF);
  const QColor c = QColorDialog::getColor(start, parent_);
  if (!c.isValid()) return false;
  chosen = c.red() | (c.green() << 8) | (c.blue() << 16);
  return true;
}

bool QtShell::OpenInDefaultViewer(const std::string& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(Q(path)));
}

bool QtShell::StartProgram(const std::string& program, const std::vector<std::string>& args) {
  QStringList list;
  for (const auto& a : args) list << Q(a);
  return QProcess::startDetached(Q(program), list);
}

void QtShell::ShowProperties(const std::string& path) {
  const QFileInfo info(Q(path));
  QString text = "Path: " + info.absoluteFilePath() + "\n";
  if (!info.exists()) {
    text += "The file does not exist.";
  } else {
    text += "Size: " + QString::number(info.size()) + " bytes\n";
    text += "Modified: " + info.lastModified().toString(Qt::ISODate) + "\n";
    text += "Accessed: " + info.lastRead().toString(Qt::ISODate) + "\n";
    const auto p = info.permissions();
    QString mode;
    const std::pair<QFile::Permission, char> bits[] = {
        {QFile::ReadOwner, 'r'}, {QFile::WriteOwner, 'w'}, {QFile::ExeOwner, 'x'},
        {QFile::ReadGroup, 'r'}, {QFile::WriteGroup, 'w'}, {QFile::ExeGroup, 'x'},
        {QFile::ReadOther, 'r'}, {QFile::WriteOther, 'w'}, {QFile::ExeOther, 'x'}};
    for (const auto& [bit, letter] : bits) mode += (p & bit) ? QChar(letter) : QChar('-');
    text += "Permissions: " + mode + "  (" + info.owner() + ":" + info.group() + ")";
  }
  QMessageBox box(QMessageBox::Information, "Properties", text, QMessageBox::Ok, parent_);
  box.exec();
}

std::string QtClipboard::Text() const {
  return S(QGuiApplication::clipboard()->text());
}

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setText(Q(text));
}

bool QtImageInfo::Size(const std::string& path, int& width, int& height) {
  // The four formats of the web are read from their headers; others through Qt's readers,
  // which also stop at the header for their size.
  const ImageHeader header = ReadImageFileHeader(path);
  if (header.status != ImageHeader::Status::NotAPicture || !header.format.empty()) {
    if (!header.ok()) return false;
    width = header.width;
    height = header.height;
    return true;
  }
  QImageReader reader(Q(path));
  const QSize size = reader.size();
  if (!size.isValid() || size.width() > kLargestImageSide || size.height() > kLargestImageSide)
    return false;
  width = size.width();
  height = size.height();
  return true;
}

}  // namespace tessarine
