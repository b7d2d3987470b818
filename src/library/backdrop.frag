#version 440

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    float topRadius; // points, as are the next two
    float bottomRadius;
    vec2 paneSize;
    vec2 topCenter; // of the pane, as is the next
    vec2 bottomCenter;
    vec4 base;
    vec4 topGlow; // as it is in the middle; colours come premultiplied
    vec4 bottomGlow;
};

vec3 lit(vec3 ground, vec4 glow, vec2 center, float radius) {
    float share = clamp(1.0 - distance(qt_TexCoord0 * paneSize, center * paneSize) / radius, 0.0, 1.0);
    return ground * (1.0 - glow.a * share) + glow.rgb * share;
}

// So little light over so wide a way would lie in rings: a grain of less than a step dissolves them.
float grain(vec2 pixel) {
    return fract(52.9829189 * fract(dot(pixel, vec2(0.06711056, 0.00583715)))) - 0.5;
}

void main() {
    vec3 colour = lit(base.rgb, topGlow, topCenter, topRadius);
    colour = lit(colour, bottomGlow, bottomCenter, bottomRadius);
    fragColor = vec4(colour + grain(gl_FragCoord.xy) / 255.0, 1.0) * qt_Opacity;
}
