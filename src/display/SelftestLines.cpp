#include "display/SelftestLines.h"

#include <sys/sysmacros.h>

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QScreen>

#include "display/EglDevice.h"
#include "display/GlTexture.h"
#include "display/PixelFormat.h"
#include "display/ProbeClient.h"

namespace tromelo {

namespace {

QString sizeText(QSize size) {
  return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString fourccText(std::uint32_t fourcc) {
  const char letters[] = {char(fourcc), char(fourcc >> 8), char(fourcc >> 16), char(fourcc >> 24)};
  return QString::fromLatin1(letters, sizeof letters);
}

QString modifierText(std::uint64_t modifier) {
  if (modifier == kLinearModifier) return QStringLiteral("linear");
  if (modifier == kImplicitModifier) return QStringLiteral("implicit");
  return QStringLiteral("0x%1").arg(modifier, 16, 16, QLatin1Char('0'));
}

QString hertzText(int millihertz) {
  return QString::number(millihertz / 1000.0, 'f', 3) + QStringLiteral(" Hz");
}

/// An OpenGL context without a window, current while this object lives.
class CurrentContext {
 public:
  CurrentContext() {
    surface_.create();
    isCurrent_ = context_.create() && context_.makeCurrent(&surface_);
  }

  explicit operator bool() const { return isCurrent_; }
  QOpenGLFunctions& functions() const { return *context_.functions(); }

 private:
  QOffscreenSurface surface_;
  QOpenGLContext context_;
  bool isCurrent_ = false;
};

QString openGlLine() {
  const CurrentContext context;
  if (!context) return QStringLiteral("OpenGL: none");
  const auto text = [&](GLenum name) {
    return QString::fromUtf8(reinterpret_cast<const char*>(context.functions().glGetString(name)));
  };
  return QStringLiteral("OpenGL: %1, %2").arg(text(GL_RENDERER), text(GL_VERSION));
}

QStringList dmabufLines(const std::optional<DmabufSupport>& dmabuf) {
  if (!dmabuf)
    return {QStringLiteral("dmabuf: not announced, the engine presents through shared memory"),
            QStringLiteral("synchronisation: a picture is copied before its buffer goes back")};
  QStringList lines{QStringLiteral("dmabuf main device: %1:%2")
                        .arg(gnu_dev_major(dmabuf->mainDevice))
                        .arg(gnu_dev_minor(dmabuf->mainDevice)),
                    QStringLiteral("synchronisation: implicit, by the fences of each buffer")};
  for (const auto& tranche : dmabuf->tranches)
    for (const auto& [fourcc, announced] : tranche.formats) {
      QStringList modifiers;
      for (const auto modifier : announced) modifiers += modifierText(modifier);
      lines += QStringLiteral("dmabuf format: %1 with %2")
                   .arg(fourccText(fourcc), modifiers.join(QStringLiteral(", ")));
    }
  return lines;
}

}  // namespace

QStringList hostLines() {
  QStringList lines{QStringLiteral("host: ") + QGuiApplication::platformName()};
  for (const QScreen* screen : QGuiApplication::screens())
    lines += QStringLiteral("host screen: %1 at %2, scale %3")
                 .arg(sizeText(screen->size() * screen->devicePixelRatio()),
                      hertzText(qRound(screen->refreshRate() * 1000)))
                 .arg(screen->devicePixelRatio());
  return lines;
}

QStringList eglLines() {
  EGLDisplay display = platformEglDisplay();
  if (display == EGL_NO_DISPLAY) return {openGlLine(), QStringLiteral("EGL: not used by the host")};
  const QByteArray node = drmNodePath(display);
  const auto yesNo = [&](const char* extension) {
    return hasEglExtension(display, extension) ? QStringLiteral("yes") : QStringLiteral("no");
  };
  return {openGlLine(),
          QStringLiteral("EGL: %1, %2")
              .arg(QString::fromUtf8(eglQueryString(display, EGL_VENDOR)),
                   QString::fromUtf8(eglQueryString(display, EGL_VERSION))),
          QStringLiteral("EGL device: ") +
              (node.isEmpty() ? QStringLiteral("no DRM device") : QString::fromUtf8(node)),
          QStringLiteral("EGL imports dmabufs: %1, with modifiers: %2")
              .arg(yesNo("EGL_EXT_image_dma_buf_import"),
                   yesNo("EGL_EXT_image_dma_buf_import_modifiers"))};
}

QStringList displayLines(const QByteArray& socketPath) {
  const auto facts = probeDisplay(socketPath);
  if (!facts) return {QStringLiteral("private display: refuses its own process")};
  QStringList globals;
  for (const auto& [interface, version] : facts->globals)
    globals += QStringLiteral("%1 %2").arg(QString::fromStdString(interface)).arg(version);
  return QStringList{QStringLiteral("private display: ") + globals.join(QStringLiteral(", ")),
                     QStringLiteral("announced screen: %1 at %2")
                         .arg(sizeText(facts->screen), hertzText(facts->refreshMillihertz))} +
         dmabufLines(facts->dmabuf);
}

QString frameLine(const Frame& frame) {
  const ClientBuffer& buffer = *frame.content().buffer;
  const auto* dmabuf = std::get_if<DmabufPixels>(&buffer.pixels);
  const QString memory = dmabuf ? QStringLiteral("dmabuf with ") + modifierText(dmabuf->modifier)
                                : QStringLiteral("shared memory");
  const auto& color = frame.content().color;
  const QString told = color ? QStringLiteral("transfer function %1, primaries %2")
                                   .arg(color->transfer)
                                   .arg(color->primaries)
                             : QStringLiteral("no colours told");
  return QStringLiteral("engine's frame: %1, %2 in %3, %4")
      .arg(sizeText(buffer.size), fourccText(buffer.fourcc), memory, told);
}

QString importLine(const Frame& frame) {
  const ClientBuffer& buffer = *frame.content().buffer;
  if (!std::holds_alternative<DmabufPixels>(buffer.pixels))
    return QStringLiteral("import: not needed, the frame's pixels are copied");
  const CurrentContext context;
  const bool isImported = context && GlTexture().import(buffer);
  return isImported ? QStringLiteral("import: the frame is a texture without a copy")
                    : QStringLiteral("import: refused, the player falls back to shared memory");
}

}  // namespace tromelo
