#version 440

layout(location = 0) in vec2 place;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 matrix;
    float opacity;
    int kind; // 0: PQ, 1: HLG, both of BT.2020; 2: Display P3
};

layout(binding = 1) uniform sampler2D picture;

const float referenceWhite = 203.0; // cd/m², ITU-R BT.2408
const float hlgPeak = 1000.0;       // cd/m² of the screen that HLG is meant for
const float knee = 0.75;            // of white: what is darker stays as it is

// SMPTE ST 2084, in cd/m².
vec3 fromPq(vec3 signal) {
    const float m1 = 0.1593017578125, m2 = 78.84375;
    const float c1 = 0.8359375, c2 = 18.8515625, c3 = 18.6875;
    vec3 power = pow(clamp(signal, 0.0, 1.0), vec3(1.0 / m2));
    return 10000.0 * pow(max(power - c1, 0.0) / (c2 - c3 * power), vec3(1.0 / m1));
}

// ITU-R BT.2100's HLG on a screen of the peak, in cd/m².
vec3 fromHlg(vec3 signal) {
    const float a = 0.17883277, b = 0.28466892, c = 0.55991073;
    vec3 e = clamp(signal, 0.0, 1.0);
    vec3 low = e * e / 3.0;
    vec3 high = (exp((e - c) / a) + b) / 12.0;
    vec3 scene = mix(low, high, step(0.5, e));
    float light = dot(scene, vec3(0.2627, 0.6780, 0.0593));
    return hlgPeak * pow(max(light, 0.000001), 0.2) * scene;
}

// Light of BT.709's primaries, 1 for white.
vec3 lightOf(vec3 signal) {
    // ITU-R BT.2087.
    const mat3 fromBt2020 = mat3(1.6605, -0.1246, -0.0182, -0.5876, 1.1329, -0.1006, -0.0728, -0.0083, 1.1187);
    const mat3 fromP3 = mat3(1.2249, -0.0420, -0.0197, -0.2247, 1.0419, -0.0786, 0.0, 0.0, 1.0979);
    if (kind == 2)
        return fromP3 * pow(signal, vec3(2.2));
    return fromBt2020 * (kind == 0 ? fromPq(signal) : fromHlg(signal)) / referenceWhite;
}

void main() {
    vec3 light = max(lightOf(texture(picture, place).rgb), 0.0);

    // Highlights are pressed together below white, by the brightest channel: colours keep their hue.
    float brightest = max(light.r, max(light.g, light.b));
    if (kind != 2 && brightest > knee)
        light *= (1.0 - (1.0 - knee) * exp((knee - brightest) / (1.0 - knee))) / brightest;

    fragColor = vec4(pow(clamp(light, 0.0, 1.0), vec3(1.0 / 2.2)), 1.0) * opacity;
}
