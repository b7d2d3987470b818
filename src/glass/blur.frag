#version 440

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    float reach;   // points of `behind` on each side of the pane
    vec2 paneSize; // points
};

layout(binding = 1) uniform sampler2D behind;

const int taps = 16;
const float goldenAngle = 2.39996323;

// A disc of taps on a small, smoothed picture: wide, and without the stripes of a grid.
void main() {
    vec2 p = qt_TexCoord0 * paneSize;
    vec2 whole = paneSize + 2.0 * reach;
    vec3 sum = vec3(0.0);
    for (int i = 0; i < taps; ++i) {
        float distance = sqrt((float(i) + 0.5) / float(taps)) * reach * 0.9;
        float angle = float(i) * goldenAngle;
        vec2 at = (p + reach + distance * vec2(cos(angle), sin(angle))) / whole;
        sum += textureLod(behind, clamp(at, 0.002, 0.998), 2.0).rgb;
    }
    fragColor = vec4(sum / float(taps), 1.0) * qt_Opacity;
}
