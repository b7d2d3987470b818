#include "windows/AboutFacts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QSysInfo>
#include <QThreadPool>

#include "engine/MpvEngine.h"
#include "platform/MainThread.h"

namespace tromelo {

AboutFacts::AboutFacts(MpvEngine& engine, QString picture, std::function<QStringList()> findVulkan)
    : picture_(std::move(picture)),
      engine_(QStringLiteral("libmpv: client API %1")
                  .arg(QString::fromStdString(engine.clientApiVersion()))) {
  ask(engine, "mpv-version", &engine_, engine_ + QStringLiteral(", %1"));
  ask(engine, "libplacebo-version", &renderer_, QStringLiteral("libplacebo: %1"));
  findDevices(std::move(findVulkan));
}

QString AboutFacts::version() { return tr("Version %1").arg(QStringLiteral(TROMELO_VERSION)); }

QString AboutFacts::details() const {
  QStringList lines{
      QStringLiteral("Qt: %1, %2").arg(QLatin1StringView(qVersion()), qApp->platformName()),
      engine_, renderer_};
  lines += devices_;
  lines += QStringLiteral("Picture: ") + picture_;
  lines += QStringLiteral("System: %1, %2")
               .arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture());
  lines.removeAll(QString());
  return lines.join(u'\n');
}

void AboutFacts::copy() const {
  QGuiApplication::clipboard()->setText(
      QStringLiteral("Tromelo %1\n%2\n").arg(QStringLiteral(TROMELO_VERSION), details()));
}

void AboutFacts::ask(MpvEngine& engine, const char* property, QString* line,
                     const QString& pattern) {
  engine.readProperty(
      property, [facts = QPointer(this), line, pattern](const std::optional<std::string>& answer) {
        if (!facts || !answer) return;
        *line = pattern.arg(QString::fromStdString(*answer));
        Q_EMIT facts->detailsChanged();
      });
}

void AboutFacts::findDevices(std::function<QStringList()> findVulkan) {
  QThreadPool::globalInstance()->start([facts = QPointer(this), find = std::move(findVulkan)] {
    postToMainThread([facts, devices = find()] {
      if (!facts) return;
      facts->devices_ = devices;
      Q_EMIT facts->detailsChanged();
    });
  });
}

}  // namespace tromelo
