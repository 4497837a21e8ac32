#version 440

// Three round lights of one colour on a dark ground.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec4 accent;
    vec4 base;
    vec2 size;         // of the item, in points
    vec4 firstLight;   // centre in shares of the size, radius in points, opacity
    vec4 secondLight;
    vec4 thirdLight;
};

float brightness(vec2 point, vec4 light) {
    float t = clamp(1.0 - length(point - light.xy * size) / light.z, 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t) * light.w;
}

float noise(vec2 p) {
    return fract(sin(dot(p, vec2(12.9898, 78.233))) * 43758.5453);
}

void main() {
    vec2 point = qt_TexCoord0 * size;
    vec3 color = base.rgb;
    color = mix(color, accent.rgb, brightness(point, firstLight));
    color = mix(color, accent.rgb, brightness(point, secondLight));
    color = mix(color, accent.rgb, brightness(point, thirdLight));
    color += (noise(point) - 0.5) / 255.0;  // no bands
    fragColor = vec4(color, 1.0) * qt_Opacity;
}
