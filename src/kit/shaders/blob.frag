#version 440

// A glossy sphere lit from the upper left: shades from deep over primary to soft, a glass cap, a rim
// light below, a small hot spot, and coloured light around it.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec4 deep;
    vec4 primary;
    vec4 soft;
    vec4 core;       // behind the symbol
    float extent;    // of the item, in points
    float diameter;  // of the sphere, in points
    float spread;    // of the light around it, in points
    float glow;      // opacity of that light
    float pixel;     // size of a device pixel in points
};

vec3 sphere(vec2 u, float r) {
    vec3 normal = vec3(u, sqrt(max(1.0 - r * r, 0.0)));
    float light = clamp(dot(normal, normalize(vec3(-0.35, -0.75, 0.62))) * 0.5 + 0.5, 0.0, 1.0);
    vec3 rgb = light < 0.55 ? mix(deep.rgb * 0.85, primary.rgb, light / 0.55)
                            : mix(primary.rgb, soft.rgb, (light - 0.55) / 0.45);

    rgb = mix(rgb, core.rgb, 0.92 * (1.0 - smoothstep(0.42, 0.98, r)));

    float cap = 1.0 - smoothstep(0.55, 0.80, length((u - vec2(0.0, -0.42)) / vec2(1.02, 0.72)));
    rgb += cap * smoothstep(-0.30, -1.0, u.y) * 0.26;
    rgb += soft.rgb * smoothstep(0.72, 1.0, r) * smoothstep(-0.1, 0.9, u.y) * 0.42;
    vec2 fromSpot = u - vec2(-0.36, -0.56);
    rgb += exp(-dot(fromSpot, fromSpot) * 26.0) * 0.34;
    float topEdge = smoothstep(-2.0, -0.6, (r - 1.0) * diameter * 0.5);
    return mix(rgb, vec3(1.0), topEdge * 0.22 * smoothstep(0.2, -0.9, u.y));
}

void main() {
    vec2 p = (qt_TexCoord0 - 0.5) * extent;
    float radius = diameter * 0.5;
    float r = length(p) / radius;
    float inside = clamp((radius - length(p)) / pixel + 0.5, 0.0, 1.0);

    float outside = max(length(p - vec2(0.0, 0.07 * diameter)) - radius * 0.96, 0.0);
    float light = glow * exp(-outside * outside / (spread * spread));
    light *= clamp((extent * 0.5 - length(p)) / ((extent - diameter) * 0.5), 0.0, 1.0);

    vec4 color = vec4(primary.rgb * light, light * 0.7) * (1.0 - inside);
    color += vec4(clamp(sphere(p / radius, r), 0.0, 1.0), 1.0) * inside;
    fragColor = color * qt_Opacity;
}
