#version 440

// A round light that fades to nothing.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec4 light;  // in the middle, multiplied by its opacity
    float radius;
};

float noise(vec2 p) {
    return fract(sin(dot(p, vec2(12.9898, 78.233))) * 43758.5453);
}

void main() {
    float t = clamp(1.0 - length(qt_TexCoord0 - 0.5) * 2.0, 0.0, 1.0);
    float brightness = t * t * (3.0 - 2.0 * t);
    float dither = (noise(qt_TexCoord0 * radius) - 0.5) / 255.0 * step(0.001, brightness);
    fragColor = (light * brightness + dither) * qt_Opacity;
}
