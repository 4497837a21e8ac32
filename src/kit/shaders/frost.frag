#version 440

// A small picture, blurred.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec2 pixel;  // size of one of the picture's pixels, in shares of its size
};
layout(binding = 1) uniform sampler2D picture;

const int reach = 7;
const float spread = 3.0;

void main() {
    vec4 sum = vec4(0.0);
    float weights = 0.0;
    for (int y = -reach; y <= reach; ++y) {
        for (int x = -reach; x <= reach; ++x) {
            vec2 step = vec2(x, y);
            float weight = exp(-dot(step, step) / (2.0 * spread * spread));
            sum += texture(picture, qt_TexCoord0 + step * pixel) * weight;
            weights += weight;
        }
    }
    fragColor = sum / weights * qt_Opacity;
}
