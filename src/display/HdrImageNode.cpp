#include "display/HdrImageNode.h"

#include <QSGMaterial>
#include <cstring>

namespace tromelo {

namespace {

class Material final : public QSGMaterial {
 public:
  explicit Material(HdrImageNode::Signal kind) : signal(kind) {
    setFlag(Blending);  // a fading scene
  }

  QSGMaterialType* type() const override {
    static QSGMaterialType type;
    return &type;
  }
  QSGMaterialShader* createShader(QSGRendererInterface::RenderMode) const override;
  int compare(const QSGMaterial* other) const override {
    const auto* material = static_cast<const Material*>(other);
    if (signal != material->signal) return signal < material->signal ? -1 : 1;
    if (texture == material->texture) return 0;
    return std::less<>()(texture, material->texture) ? -1 : 1;
  }

  const HdrImageNode::Signal signal;
  QSGTexture* texture = nullptr;
};

/// The uniforms, as the shaders have them.
struct Uniforms {
  float matrix[16];
  float opacity;
  std::int32_t kind;
};

class Shader final : public QSGMaterialShader {
 public:
  Shader() {
    setShaderFileName(VertexStage, QStringLiteral(":/tromelo/display/hdr.vert.qsb"));
    setShaderFileName(FragmentStage, QStringLiteral(":/tromelo/display/hdr.frag.qsb"));
  }

  bool updateUniformData(RenderState& state, QSGMaterial* material, QSGMaterial*) override {
    Uniforms uniforms{{}, state.opacity(), int(static_cast<Material*>(material)->signal)};
    std::memcpy(uniforms.matrix, state.combinedMatrix().constData(), sizeof uniforms.matrix);
    std::memcpy(state.uniformData()->data(), &uniforms, sizeof uniforms);
    return true;
  }

  void updateSampledImage(RenderState& state, int, QSGTexture** texture, QSGMaterial* material,
                          QSGMaterial*) override {
    *texture = static_cast<Material*>(material)->texture;
    (*texture)->commitTextureOperations(state.rhi(), state.resourceUpdateBatch());
  }
};

QSGMaterialShader* Material::createShader(QSGRendererInterface::RenderMode) const {
  return new Shader;  // the scene graph's
}

}  // namespace

HdrImageNode::HdrImageNode(Signal signal) : signal_(signal) {
  // The node's own.
  setGeometry(new QSGGeometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 4));
  setMaterial(new Material(signal));
  setFlags(OwnsGeometry | OwnsMaterial);
}

void HdrImageNode::setPicture(QSGTexture* texture, const QRectF& rect, const QRectF& source) {
  static_cast<Material*>(material())->texture = texture;
  texture->setFiltering(QSGTexture::Linear);
  const QSizeF whole = texture->textureSize();
  const QRectF part(source.x() / whole.width(), source.y() / whole.height(),
                    source.width() / whole.width(), source.height() / whole.height());
  QSGGeometry::updateTexturedRectGeometry(geometry(), rect, part);
  markDirty(DirtyGeometry | DirtyMaterial);
}

}  // namespace tromelo
