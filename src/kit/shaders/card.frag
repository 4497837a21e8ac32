#version 440

// A rounded box in one pass: a dark contact shadow and a coloured glow below it, a fill that is
// lighter at the top, the accent's light from the upper left corner, and a rim lit from above.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec4 glow;          // its alpha is the strength
    vec4 fillTop;
    vec4 fillBottom;
    vec4 rim;           // its alpha is that of the lower half; the top is about twice as bright
    vec2 size;          // of the item, in points
    float reach;        // how far the item extends past the box on each side, in points
    float radius;
    float cornerLight;  // 0 to 1
    float shade;        // opacity of the dark shadow
    float pixel;        // size of a device pixel in points
};

// Colours come with their opacity multiplied in.
vec3 plain(vec4 color) {
    return color.rgb / max(color.a, 0.001);
}

float distanceToBox(vec2 p, vec2 halfSize, float r) {
    vec2 q = abs(p) - halfSize + r;
    return length(max(q, 0.0)) + min(max(q.x, q.y), 0.0) - r;
}

// Gaussian falloff outside the box, nothing at the item's edge.
float falloff(float outside, float spread) {
    float o = max(outside, 0.0);
    return exp(-o * o / (reach * reach * spread));
}

float noise(vec2 p) {
    return fract(sin(dot(p, vec2(12.9898, 78.233))) * 43758.5453);
}

void main() {
    vec2 point = qt_TexCoord0 * size;
    vec2 p = point - size * 0.5;
    vec2 halfSize = size * 0.5 - reach;
    float d = distanceToBox(p, halfSize, radius);
    float inside = clamp(0.5 - d / pixel, 0.0, 1.0);
    float down = clamp((p.y + halfSize.y) / (2.0 * halfSize.y), 0.0, 1.0);

    vec3 glowColor = plain(glow);
    vec4 fill = mix(fillTop, fillBottom, down);
    vec2 fromCorner = (p + halfSize) / max(2.0 * halfSize.y, 220.0) - vec2(0.12, 0.10);
    float light = exp(-dot(fromCorner, fromCorner) * 1.5) * cornerLight;
    float alpha = fill.a + light * 0.12;
    vec4 body = vec4(mix(plain(fill), glowColor, light * 0.24) * alpha, alpha) * inside;

    float line = clamp(1.0 - abs(d / pixel + 0.75), 0.0, 1.0);
    float lit = rim.a * mix(1.9, 0.8, smoothstep(0.0, 0.55, down));
    body = mix(body, vec4(plain(rim), 1.0), clamp(line * lit, 0.0, 1.0) * inside);

    float dark = shade * falloff(distanceToBox(p - vec2(0.0, 8.0), halfSize, radius), 0.16);
    float coloured = glow.a * falloff(distanceToBox(p - vec2(0.0, 5.0), halfSize - 2.0, radius), 0.20);
    float edge = clamp((reach - max(d, 0.0)) / reach, 0.0, 1.0);
    vec4 shadow = vec4(glowColor * coloured, max(dark, coloured)) * edge * (1.0 - inside);

    vec4 color = body + shadow * (1.0 - body.a);
    color.rgb += (noise(point) - 0.5) / 255.0 * color.a;  // no bands in dark gradients
    fragColor = color * qt_Opacity;
}
