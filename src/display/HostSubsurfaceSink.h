#pragma once

#include <memory>
#include <mutex>

#include "display/HostConnection.h"
#include "display/HostSurface.h"
#include "display/SceneItemSink.h"

namespace tromelo {

/// Gives the engine's buffers to a Wayland host, which shows them on a surface of their own below
/// the window: neither the scene nor the main thread has to do with a frame then.
///
/// The scene draws the pictures in its place while the host can't: while there is no window, while
/// the scene is faded on a host that can't fade a surface, and for good once the host has refused a
/// picture. It reads the newest one too while it needs that, for glass. Who shows it next does so
/// before who showed it last stops.
class HostSubsurfaceSink final : public VideoSink,
                                 public std::enable_shared_from_this<HostSubsurfaceSink> {
 public:
  /// Main thread.
  static std::shared_ptr<HostSubsurfaceSink> create(std::shared_ptr<HostConnection> host,
                                                    QObject* receiver, Events events);
  ~HostSubsurfaceSink() override;

  void commit(std::shared_ptr<Frame> frame) override;
  void setPlace(const Place& place) override;
  QRectF hole() const override;
  QSGNode* updateNode(QSGNode* node, QQuickItem& item) override;

 private:
  enum class Way {
    scene,      // draws it; the host has nothing
    placing,    // too; the host is to learn where its surface goes
    mapping,    // too; the host is to show the surface
    host,       // shows it; the scene leaves it free
    returning,  // too; the scene is to draw it
    leaving,    // too, below the scene, which draws it
    unmapping,  // no more, as soon as it has been told
  };

  HostSubsurfaceSink(std::shared_ptr<HostConnection> host, QObject* receiver, Events events);

  bool canGoToHost() const;
  void goToHost();
  void map();
  /// `told` follows once the host has been told, unless the way is another by then.
  void setMapped(bool mapped, Way way, void (HostSubsurfaceSink::*told)());
  void nudge();
  void arrive();
  void goToScene();
  void leave();
  void settle();
  void loseParent();
  void makeSubsurface();
  void applyPlace();
  QRect picturePlace() const;
  void setWay(Way way);
  void updateTap();
  void fail();
  void tellCommitted() { tell(&Events::committed); }
  void tellRefused() { tell(&Events::refused); }
  void tellFirstShown();
  /// On the main thread, in its turn, unless the sink is gone or on another way by then.
  std::function<void()> when(Way way, void (HostSubsurfaceSink::*step)());

  const std::shared_ptr<HostConnection> host_;
  std::shared_ptr<HostSurface> surface_;
  std::shared_ptr<SceneItemSink> tap_;

  // Main thread.
  Place place_;
  Way way_ = Way::scene;
  HostProxy<wl_subsurface> subsurface_;
  QPoint position_;
  bool hasFailed_ = false;
  bool hasShown_ = false;

  std::mutex mutex_;
  std::shared_ptr<Frame> newest_;
  bool isTapped_ = true;
  bool sceneReports_ = true;
};

}  // namespace tromelo
