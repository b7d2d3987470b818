#version 440

layout(location = 0) in vec4 position;
layout(location = 1) in vec2 texCoord;
layout(location = 0) out vec2 place;

layout(std140, binding = 0) uniform buf {
    mat4 matrix;
    float opacity;
    int kind;
};

void main() {
    place = texCoord;
    gl_Position = matrix * position;
}
