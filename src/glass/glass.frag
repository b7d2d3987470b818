#version 440

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    float corner;  // points
    float light;   // 0 at rest
    float blurs;   // 0: nothing is behind
    float lightCover; // and where it is white
    vec2 paneSize; // points
    vec4 tint;     // its alpha is how much of what is behind it covers, where that is dark
};

layout(binding = 1) uniform sampler2D behind; // blurred

const float edgeWidth = 1.0; // points of light at the rim
const float lensWidth = 14.0; // points along the rim in which the glass bends what is behind
const float lensPull = 9.0;

// Distance to the outline, negative inside.
float outline(vec2 p) {
    vec2 q = abs(p - 0.5 * paneSize) - 0.5 * paneSize + corner;
    return length(max(q, 0.0)) + min(max(q.x, q.y), 0.0) - corner;
}

void main() {
    vec2 p = qt_TexCoord0 * paneSize;
    float d = outline(p);
    float softness = max(fwidth(d), 0.0001);
    float inside = clamp(0.5 - d / softness, 0.0, 1.0);
    if (inside <= 0.0) {
        fragColor = vec4(0.0);
        return;
    }

    // The rim bends what is behind towards the middle.
    vec2 outward = vec2(outline(p + vec2(0.5, 0.0)) - outline(p - vec2(0.5, 0.0)),
                        outline(p + vec2(0.0, 0.5)) - outline(p - vec2(0.0, 0.5)));
    float bend = smoothstep(-lensWidth, 0.0, d);
    vec3 picture = blurs > 0.5 ? texture(behind, (p - outward * bend * bend * lensPull) / paneSize).rgb : vec3(0.0);
    float opacity = blurs > 0.5 ? 1.0 : tint.a;

    // Text on it is white: the lighter the picture, the less of it comes through.
    float cover = mix(tint.a, lightCover, smoothstep(0.3, 0.9, dot(picture, vec3(0.2126, 0.7152, 0.0722))));
    vec3 tinted = tint.rgb / max(tint.a, 0.001);
    vec3 colour = blurs > 0.5 ? mix(picture, tinted, cover) : tinted;
    colour += light;

    // Light falls on the rim from above, and a little comes through below.
    float rim = 1.0 - smoothstep(0.0, edgeWidth, abs(d + 0.5 * edgeWidth));
    float fall = mix(0.34, 0.10, smoothstep(0.0, 1.0, qt_TexCoord0.y));
    colour += rim * fall;

    float alpha = inside * max(opacity, rim * fall) * qt_Opacity;
    fragColor = vec4(min(colour, 1.0) * alpha, alpha);
}
